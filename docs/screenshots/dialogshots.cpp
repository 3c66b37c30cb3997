// Shows the action's dialogs one after the other, as a host shows them, and keeps a picture of each:
// dialogshots FOLDER [SUFFIX]
#include "EditInitialView/InitialViewSettings.h"
#include "EditInitialView/editinitialview.h"
#include "shared/CUtils.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

// Long enough for the X server and the compositor to show a new window, even in software.
const int settleMilliseconds = 800;
const int margin = 40;

QString folder;
QString suffix;

[[noreturn]] void fail(const QString& reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::_Exit(1);
}

/// A host's window with a page in it, or the bare desk.
class Backdrop : public QWidget
{
public:
    explicit Backdrop(const QString& hostName)
    {
        setObjectName(hostName);
        setWindowFlag(Qt::FramelessWindowHint);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QLinearGradient light(rect().topLeft(), rect().bottomRight());
        light.setColorAt(0, QColor(122, 150, 176));
        light.setColorAt(1, QColor(58, 78, 104));
        painter.fillRect(rect(), light);
        if (!objectName().isEmpty())
            paintPage(painter, QRect(rect().center() - QPoint(280, 400), QSize(560, 800)));
    }

private:
    static void paintPage(QPainter& painter, const QRect& page)
    {
        painter.fillRect(page, Qt::white);
        for (int y = page.top() + 50; y < page.bottom() - 50; y += 18)
            painter.fillRect(page.left() + 30, y, page.width() - 60, 6, QColor(200, 204, 212));
    }
};

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settleMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void keepPictureOf(const QWidget& dialog, const QString& name)
{
    settle();
    QRect area = dialog.frameGeometry();
    if (const auto* below = qobject_cast<QDialog*>(dialog.parentWidget()))
        area |= below->frameGeometry();
    area.adjust(-margin, -margin, margin, margin);
    const QString file = folder + "/" + name + suffix + ".png";
    if (!dialog.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).save(file))
        fail("Cannot write " + file);
}

/// Once a dialog has appeared, hands it over and closes it.
void withNextDialog(const std::function<void(QDialog&)>& use)
{
    QTimer::singleShot(settleMilliseconds, [use] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            fail("No dialog appeared");
        use(*dialog);
        dialog->reject();
    });
}

QMap<QString, QVariant> sampleSettings()
{
    using namespace initialview;
    return {{key::LayoutAndMagn, true},
            {key::NavigationTab, 1},
            {key::PageLayout, 5},
            {key::Magnification, 1},
            {key::OpenToPage, 3},
            {key::ViewerPrefs, true},
            {key::HideToolBars, true},
            {key::ResizeWinToInitPage, true},
            {key::Show, 1}};
}

void showSettings(const QString& hostName, const std::function<void(QDialog&)>& use)
{
    Backdrop backdrop(hostName);
    backdrop.setGeometry(QGuiApplication::primaryScreen()->geometry());
    backdrop.show();
    withNextDialog(use);
    QMap<QString, QVariant> settings = sampleSettings();
    DialogLoadStruct load{};
    load.pSettings = &settings;
    load.bSkipDocumentRead = true;
    CEditInitialView().ShowDialogProc(hostName.isEmpty() ? nullptr : &backdrop, &load);
}

void keepSettings(const QString& hostName, const QString& picture)
{
    showSettings(hostName, [&](QDialog& dialog) { keepPictureOf(dialog, picture); });
}

/// The dialog behind a header button of the settings dialog, with a name typed into its only text field.
void keepFurtherDialog(const QString& button, const QString& nameField, const QString& picture)
{
    showSettings("QuintarClass", [&](QDialog& settings) {
        withNextDialog([=](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(nameField);
            if (name == nullptr)
                fail("No dialog with " + nameField + " appeared");
            name->setText("Open like a book");
            keepPictureOf(dialog, picture);
        });
        settings.findChild<QToolButton*>(button)->click();
    });
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    if (argc < 2)
        fail("Usage: dialogshots FOLDER [SUFFIX]");
    folder = argv[1];
    suffix = argc > 2 ? argv[2] : "";
    std::printf("Translucent windows: %s\n", CUtils::CheckOpenGLSupport() ? "yes" : "no");

    keepSettings("", "settings");
    keepSettings("QuintarClass", "settings-main-window");
    keepSettings("QuintarPreviewClass", "settings-preview");
    keepFurtherDialog("QDtoolbarAddToActionListButton", "actionListNameLineEdit", "add-to-action");
    keepFurtherDialog("QDtoolbarAddToCollectionsButton", "collectionNameLineEdit", "add-to-favorites");
}
