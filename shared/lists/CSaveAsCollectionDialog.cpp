#include "CSaveAsCollectionDialog.h"

#include "CActionHistoryAPI.h"
#include "ini/CIniFile.h"
#include "ini/StoreReport.h"
#include "ini/StoredKeys.h"

#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QImageReader>
#include <QList>
#include <QPixmap>

using namespace storedkeys;

namespace {

const int leastHeight = 236;
const int iconSide = 128;
/// Those that the user is offered. What others hold is no picture but instructions to draw one, which
/// may take for ever.
const QList<QByteArray> pictureFormats{"bmp", "jpg", "jpeg", "gif", "png", "tif", "tiff", "wmf", "emf"};
const qint64 mostPictureBytes = qint64(256) << 20; // in memory, where each pixel takes four

/// Why a picture is not to be read, in words that follow its name; empty where it is.
QString refusal(QImageReader& reader)
{
    if (const QByteArray format = reader.format(); !format.isEmpty() && !pictureFormats.contains(format))
        return "is of another kind, " + QString(format);
    const QSize size = reader.size();
    if (4 * qint64(size.width()) * size.height() > mostPictureBytes)
        return QString("is too large, with %1 x %2 pixels").arg(size.width()).arg(size.height());
    return QString();
}

/// \returns an empty icon, and adds a report, where the picture cannot be read.
QIcon iconFrom(const QString& path)
{
    QImageReader reader(path);
    QString problem = refusal(reader);
    const QPixmap picture = problem.isEmpty() ? QPixmap::fromImageReader(&reader) : QPixmap();
    if (!picture.isNull())
        return QIcon(picture.scaled(iconSide, iconSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    if (problem.isEmpty())
        problem = "cannot be read: " + reader.errorString();
    storereport::add("no icon: the picture " + path + " " + problem);
    return QIcon();
}

void writeToolSettings(const QString& path, const QMap<QString, QVariant>& prefs)
{
    const QString replaced = QFile::exists(path) ? ", whose other content stays" : QString();
    CIniFile file(path, CIniFile::Access::Extend);
    file.setValue(toolsettings::toolSettings, prefs);
    file.commit();
    storereport::add(storereport::inWords("the tool settings " + path, replaced, file.problem()));
}

} // namespace

CSaveAsCollectionDialog::CSaveAsCollectionDialog(QWidget* parent, Qt::WindowFlags)
    : CQuintarDialog(parent, false)
{
    ui.setupUi(this);
    titleLabel->setText(windowTitle());
    QDaddMainWidget(ui.main_widget, true);
    if (height() < leastHeight) {
        setMaximumHeight(leastHeight);
        setMinimumHeight(leastHeight);
    }
    ui.collectionNameLineEdit->setFocus();
}

void CSaveAsCollectionDialog::LoadPrefsData(QMap<QString, QVariant>* prefs)
{
    m_pPrefs = prefs;
}

void CSaveAsCollectionDialog::on_UpdateUI()
{
    const QString name = ui.collectionNameLineEdit->text().simplified().remove(' ');
    ui.saveButton->setDisabled(name.isEmpty());
}

void CSaveAsCollectionDialog::on_Save()
{
    if (!ui.saveButton->isEnabled() || m_pPrefs == nullptr)
        return;
    m_pPrefs->insert(request::collectionName, ui.collectionNameLineEdit->text());
    QIcon icon = ui.icon_toolButton->icon();
    CActionHistoryAPI(parent() != nullptr ? parent()->objectName() : QString())
        .SaveSettingsToHistory(m_pPrefs, &icon);
    accept();
}

void CSaveAsCollectionDialog::on_CollectionIcon()
{
    const QString path = QFileDialog::getOpenFileName(
        this, "Kelvane Advanced Tools", QString(), "Image files (*.bmp;*.jpg;*.gif;*.png;*.tif;*.wmf;*.emf)");
    if (path.isNull())
        return;
    ui.icon_toolButton->setIcon(iconFrom(path));
}

void CSaveAsCollectionDialog::on_SaveToFile()
{
    const QString path = QFileDialog::getSaveFileName(this, "Save Tool settings to file", QDir::homePath(),
                                                      "Tool Settings Files (*.tsf)");
    // Whoever hears of the rejection may take the settings, or the dialog itself, away.
    const QMap<QString, QVariant>* lent = m_pPrefs;
    const QMap<QString, QVariant> prefs = lent != nullptr ? *lent : QMap<QString, QVariant>();
    reject();
    if (lent != nullptr && !path.isEmpty())
        writeToolSettings(path, prefs);
}
