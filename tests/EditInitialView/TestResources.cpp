#include "EditInitialView/InitialViewSettings.h"
#include "EditInitialView/editinitialview.h"
#include "support/Rows.h"
#include "support/folders/Files.h"

#include <QApplication>
#include <QDirIterator>
#include <QIcon>
#include <QPixmap>
#include <QRegularExpression>
#include <QTextCodec>
#include <QTextEdit>
#include <QtTest>

namespace {

const QString resources = QStringLiteral(":/Quintar/Resources/");

/// Where the name, with or without folders before it, stands among the resources.
bool isResource(const QString& name)
{
    if (name.startsWith(resources))
        return QFile::exists(name);
    QDirIterator files(resources, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (files.next().endsWith("/" + name))
            return true;
    }
    return false;
}

} // namespace

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void imagesHaveTheSizesShown_data()
    {
        const Rows<QSize> row;
        for (const char* name : {"", "_Selected", "_Disabled"})
            row(QString::asprintf("Tools/Action_IntialView%s.png", name), {128, 128});
        for (const char* part : {"TopLeft", "Top", "TopRight", "Left", "Right", "BtmLeft", "Btm", "BtmRight"})
            row(QString::asprintf("DialogShadow-%s.png", part), {8, 8});
        for (const char* name : {"WinClose", "WinClose_disabled"})
            row(QString::asprintf("%s.png", name), {14, 14});
        for (const char* name :
             {"PaneActionList_extra", "PaneActionList_disabled", "Collection", "Collection_disabled"})
            row(QString::asprintf("%s.png", name), {20, 20});
        row("PaneActionList_selected.png", {41, 42});
        row("Icons/App_icon_256x256.png", {256, 256});
        row("QuintarHeader.png", {600, 30});
    }

    void imagesHaveTheSizesShown()
    {
        const auto [size] = Rows<QSize>::current();
        const QString file = resources + QTest::currentDataTag();
        const QImage image(file);
        QCOMPARE(image.size(), size);
        QVERIFY(image.hasAlphaChannel());
        const QImage twice(QString(file).replace(".png", "@2x.png"));
        QCOMPARE(twice.size(), size * 2);
        // The two are the same drawing, not one picture and another one's old version.
        const QImage halved = twice.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        double difference = 0;
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                difference += qAbs(qAlpha(image.pixel(x, y)) - qAlpha(halved.pixel(x, y)));
        }
        QVERIFY(difference / (size.width() * size.height()) < 12);
    }

    void iconsAreSharpOnAScreenOfTwiceTheScale()
    {
        QCOMPARE(qApp->devicePixelRatio(), 2.0);
        const QPixmap close = QIcon(resources + "WinClose.png").pixmap(14, 14);
        QCOMPARE(close.size(), QSize(28, 28));
        QCOMPARE(close.devicePixelRatio(), 2.0);
    }

    void theActionsOwnFilesAreThere()
    {
        CEditInitialView action;
        for (const QString& name : action.GetDefaultIcon().split('#'))
            QVERIFY2(QFile::exists(resources + "Tools/" + name), qPrintable(name));
        QVERIFY(QFile::exists(resources + "HelpFiles/" + action.GetActionHelp()));
    }

    void allFilesNamedInTheCodeAreThere()
    {
        const QRegularExpression imageName("(:/)?[\\w/-]*\\w\\.png\\b");
        int found = 0;
        for (const char* folder : {"EditInitialView", "shared"}) {
            QDirIterator sources(QString(TEST_DATA_DIR "/../../") + folder, {"*.cpp", "*.h", "*.ui"},
                                 QDir::Files, QDirIterator::Subdirectories);
            while (sources.hasNext()) {
                auto names = imageName.globalMatch(QString::fromUtf8(bytesOf(sources.next())));
                for (; names.hasNext(); ++found) {
                    const QString name = names.next().captured();
                    // The frame's style sheets name this one to show no image at all.
                    QVERIFY2(name == "none.png" || isResource(name), qPrintable(sources.fileName() + name));
                }
            }
        }
        QVERIFY(found >= 3);
    }

    void theHelpPageExplainsEverySetting()
    {
        using namespace initialview;
        const QByteArray html = bytesOf(resources + "HelpFiles/Action_EditInitialView.html");
        QTextCodec* codec = QTextCodec::codecForHtml(html);
        QCOMPARE(codec->name(), QByteArray("UTF-8"));
        QTextEdit box;
        box.setText(codec->toUnicode(html));
        const QString text = box.toPlainText();
        QVERIFY(text.startsWith("Initial View\n"));
        QVERIFY(!text.contains('<'));

        QStringList labels;
        for (const Key& key : keys) {
            if (key.label != nullptr)
                labels += key.label;
            for (const char* row : key.rows)
                labels += row;
        }
        for (const QString& label : labels) {
            const QString whole = "(^|\\W)" + QRegularExpression::escape(label) + "(\\W|$)";
            QVERIFY2(text.contains(QRegularExpression(whole)), qPrintable(label));
        }
    }
};

int main(int argc, char** argv)
{
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    TestResources test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestResources.moc"
