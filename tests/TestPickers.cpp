#include "CActionUtils.h"
#include "support/Recorder.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QPainter>
#include <QPointer>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

namespace {

/// What opening the library by its bare name finds; null leaves it to the dynamic loader.
const char* libraryFile = nullptr;

using SetUp = std::function<void(QComboBox*)>;

const SetUp colorsWithNone = [](QComboBox* box) { CActionUtils::SetupColorPickerComboBox(box, true); };
const SetUp colors = [](QComboBox* box) { CActionUtils::SetupColorPickerComboBox(box, false); };
const SetUp lineStyles = CActionUtils::SetupLineStylePickerComboBox;
const SetUp underlineStyles = CActionUtils::SetupUnderlineStylePickerComboBox;
const SetUp lineWeights = CActionUtils::SetupLineWeightPickerComboBox;

QStringList labels(const QComboBox& box)
{
    QStringList texts;
    for (int row = 0; row < box.count(); ++row)
        texts.append(box.itemText(row));
    return texts;
}

QImage sample(const QComboBox& box, int row)
{
    const QIcon icon = box.itemData(row, Qt::DecorationRole).value<QIcon>();
    const QSize size = icon.availableSizes().value(0);
    return icon.pixmap(size).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// The drawn stretches along one row or column of an image, as "first-last".
QString stretches(const QImage& image, QPoint from, QPoint step)
{
    QStringList found;
    int first = -1;
    int place = 0;
    for (QPoint at = from; first >= 0 || image.valid(at); at += step, ++place) {
        const bool drawn = image.valid(at) && qAlpha(image.pixel(at)) != 0;
        if (drawn && first < 0) {
            first = place;
        } else if (!drawn && first >= 0) {
            found.append(QString("%1-%2").arg(first).arg(place - 1));
            first = -1;
        }
    }
    return found.join(' ');
}

/// Boxes as a dialog shows them, each above its open pop-up.
QImage renderedSheet()
{
    const QSize cell(140, 270);
    const QVector<SetUp> pickers{colorsWithNone, colors, lineStyles, underlineStyles, lineWeights};
    const qreal ratio = qApp->devicePixelRatio();
    QImage sheet(QSize(cell.width() * pickers.size(), cell.height()) * ratio, QImage::Format_ARGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    for (int i = 0; i < pickers.size(); ++i) {
        QComboBox box;
        box.resize(120, 24);
        pickers[i](&box);
        box.setCurrentIndex(qMin(4, box.count() - 1));
        box.show();
        box.showPopup();
        painter.drawPixmap(i * cell.width() + 10, 10, box.grab());
        painter.drawPixmap(i * cell.width() + 10, 44, box.view()->window()->grab());
        box.hidePopup();
    }
    return sheet;
}

} // namespace

extern "C" {
void* __real_dlopen(const char* file, int mode);

void* __wrap_dlopen(const char* file, int mode)
{
    const bool bareName = qstrcmp(file, "TelvarPDFLibraryCPDylib1311.dylib") == 0;
    return __real_dlopen(bareName && libraryFile != nullptr ? libraryFile : file, mode);
}
}

Q_DECLARE_METATYPE(SetUp)

class TestPickers : public QObject
{
    Q_OBJECT

private:
    static void addPickers()
    {
        QTest::addColumn<SetUp>("setUp");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QSize>("iconSize");
        QTest::addColumn<int>("rowHeight");
        QTest::addColumn<int>("popupHeight");
        QTest::addColumn<int>("visible");
        const int usual = QComboBox().maxVisibleItems();
        QTest::newRow("colour with none") << colorsWithNone << 12 << QSize(15, 15) << 17 << 204 << 4;
        QTest::newRow("colour") << colors << 11 << QSize(15, 15) << 17 << 187 << 4;
        QTest::newRow("line style") << lineStyles << 5 << QSize(70, 14) << 15 << 75 << usual;
        QTest::newRow("underline style") << underlineStyles << 7 << QSize(70, 16) << 19 << 133 << 8;
        QTest::newRow("line weight") << lineWeights << 12 << QSize(30, 14) << 15 << 180 << usual;
    }

private slots:
    void cleanup() { libraryFile = nullptr; }

    void laysOutRows_data() { addPickers(); }

    void laysOutRows()
    {
        QFETCH(SetUp, setUp);
        QFETCH(QSize, iconSize);
        QComboBox box;
        box.resize(150, 24);
        setUp(&box);
        QTEST(box.count(), "rows");
        QCOMPARE(box.model()->columnCount(), 1);
        QCOMPARE(box.iconSize(), iconSize);
        QTEST(box.maxVisibleItems(), "visible");
        QVERIFY(qobject_cast<QStandardItemModel*>(box.model()) != nullptr);
        QVERIFY(box.model()->parent() == nullptr);

        auto* view = qobject_cast<QTableView*>(box.view());
        QVERIFY(view != nullptr);
        QVERIFY(view->horizontalHeader()->isHidden() && view->verticalHeader()->isHidden());
        QCOMPARE(view->iconSize(), iconSize);
        QCOMPARE(view->styleSheet(), QString("QTableView {gridline-color: white; background-color: white; "
                                             "selection-background-color: lightblue;}"));
        QFETCH(int, popupHeight);
        box.show();
        box.showPopup();
        QCOMPARE(view->size(), QSize(148, popupHeight));
        QCOMPARE(view->columnWidth(0), 148);
        for (int row = 0; row < box.count(); ++row)
            QTEST(view->rowHeight(row), "rowHeight");
        QCOMPARE(view->rowViewportPosition(box.count() - 1) + view->rowHeight(0), popupHeight);
    }

    void fitsNarrowBoxes()
    {
        QComboBox box;
        box.resize(12, 24);
        colors(&box);
        QCOMPARE(qobject_cast<QTableView*>(box.view())->columnWidth(0), 10);
        box.resize(0, 0);
        colors(&box);
        QCOMPARE(qobject_cast<QTableView*>(box.view())->columnWidth(0), 0);
    }

    void leavesNothingBehind_data() { addPickers(); }

    void leavesNothingBehind()
    {
        QFETCH(SetUp, setUp);
        QStandardItemModel callers;
        auto box = std::make_unique<QComboBox>();
        box->setModel(&callers);
        setUp(box.get());
        const QPointer<QObject> firstModel = box->model();
        const QPointer<QObject> firstView = box->view();
        setUp(box.get());
        QVERIFY(firstModel.isNull() && firstView.isNull());

        const QPointer<QObject> secondModel = box->model();
        const QPointer<QObject> secondView = box->view();
        box->setModel(&callers);
        setUp(box.get());
        const QPointer<QObject> thirdModel = box->model();
        box.reset();
        QVERIFY(secondModel.isNull() && secondView.isNull() && thirdModel.isNull());
        QCOMPARE(callers.rowCount(), 0);
    }

    void listsColors()
    {
        const QStringList names{"Black", "White", "Gray", "Red",     "Orange",   "Yellow",
                                "Green", "Cyan",  "Blue", "Fuchsia", "Custom..."};
        QComboBox box;
        colors(&box);
        QCOMPARE(labels(box), names);
        QCOMPARE(box.itemData(10, Qt::UserRole).value<QColor>(), QColor(255, 255, 255, 255));

        colorsWithNone(&box);
        QCOMPARE(labels(box), QStringList("(none)") + names);
        QVERIFY(!box.itemData(0, Qt::DecorationRole).isValid() &&
                !box.itemData(0, Qt::UserRole + 1).isValid());
        for (int row = 1; row <= 10; ++row) {
            const QColor color = box.itemData(row, Qt::UserRole + 1).value<QColor>();
            QCOMPARE(color, CActionUtils::GetColorPickerColor(row));
            QCOMPARE(sample(box, row).pixelColor(7, 7), color.toRgb());
            QVERIFY(!box.itemData(row, Qt::UserRole).isValid());
        }
        QVERIFY(!box.itemData(11, Qt::UserRole + 1).isValid());
        QCOMPARE(box.itemData(11, Qt::UserRole).value<QColor>(), QColor(255, 255, 255, 255));
        QCOMPARE(sample(box, 11).pixelColor(7, 7), QColor(Qt::white));
    }

    void outlinesSwatches()
    {
        QComboBox box;
        colors(&box);
        const QImage swatch = sample(box, 1);
        QCOMPARE(swatch.size(), QSize(15, 15));
        for (int i = 0; i < 15; ++i) {
            for (const QPoint at : {QPoint(i, 0), QPoint(i, 14), QPoint(0, i), QPoint(14, i)})
                QCOMPARE(swatch.pixelColor(at), QColor(Qt::black));
        }
        QCOMPARE(swatch.pixelColor(1, 1), QColor(Qt::white));
        QCOMPARE(swatch.pixelColor(13, 13), QColor(Qt::white));
    }

    void drawsLines_data()
    {
        QTest::addColumn<SetUp>("setUp");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("across");
        QTest::addColumn<QString>("down");
        QTest::addColumn<QColor>("color");
        const auto row = [](const char* what, const SetUp& setUp, int row, const char* across,
                            const char* down, const QColor& color = Qt::black) {
            QTest::newRow(what) << setUp << row << across << down << color;
        };
        // A dash is four pen widths long, a dot one, a gap two; square caps then take half a width at each
        // end.
        row("solid", lineStyles, 0, "14-60", "6-7");
        row("dashes", lineStyles, 1, "14-23 26-35 38-47 50-59", "6-7");
        row("dots", lineStyles, 2, "14-17 20-23 26-29 32-35 38-41 44-47 50-53 56-59", "6-7");
        row("dash, dot", lineStyles, 3, "14-23 26-29 32-41 44-47 50-59", "6-7");
        row("dash, dot, dot", lineStyles, 4, "14-23 26-29 32-35 38-47 50-53 56-59", "6-7");
        row("single", underlineStyles, 1, "5-65", "9-9");
        row("double", underlineStyles, 2, "", "8-8 10-10");
        row("thick", underlineStyles, 3, "4-66", "8-10");
        row("0.1", lineWeights, 0, "3-27", "7-7", QColor(200, 200, 200));
        row("0.25", lineWeights, 1, "3-27", "7-7", QColor(170, 170, 170));
        row("0.5", lineWeights, 2, "3-27", "7-7", QColor(140, 140, 140));
        row("0.75", lineWeights, 3, "3-27", "7-7", QColor(60, 60, 60));
        row("1", lineWeights, 4, "3-27", "7-7");
        row("1.5", lineWeights, 5, "2-27", "6-7");
        row("2.5", lineWeights, 7, "2-28", "6-8");
        row("4", lineWeights, 9, "1-28", "5-8");
        row("5", lineWeights, 10, "1-29", "5-9");
        row("6", lineWeights, 11, "0-29", "4-9");
    }

    void drawsLines()
    {
        QFETCH(SetUp, setUp);
        QFETCH(int, row);
        QFETCH(QColor, color);
        QComboBox box;
        setUp(&box);
        const QImage image = sample(box, row);
        const int line = image.height() == 16 ? 9 : 7;
        QTEST(stretches(image, QPoint(0, line), QPoint(1, 0)), "across");
        QTEST(stretches(image, QPoint(15, 0), QPoint(0, 1)), "down");
        if (qAlpha(image.pixel(15, line)) != 0)
            QCOMPARE(image.pixelColor(15, line), color);
    }

    void labelsLines()
    {
        QComboBox box;
        lineStyles(&box);
        QCOMPARE(labels(box), QStringList({"", "", "", "", ""}));
        underlineStyles(&box);
        QCOMPARE(labels(box), QStringList({"(none)", "", "", "", "", "", ""}));
        QVERIFY(!box.itemData(0, Qt::DecorationRole).isValid());
        lineWeights(&box);
        QCOMPARE(labels(box),
                 QStringList({"0.1", "0.25", "0.5", "0.75", "1", "1.5", "2", "2.5", "3", "4", "5", "6"}));
    }

    void convertsColors()
    {
        const QVector<QColor> known{Qt::black,  Qt::white, Qt::gray, Qt::red,  QColor(255, 127, 0),
                                    Qt::yellow, Qt::green, Qt::cyan, Qt::blue, Qt::magenta};
        for (int i = 0; i < known.size(); ++i) {
            QCOMPARE(CActionUtils::GetColorPickerIndex(known[i]), i + 1);
            QCOMPARE(CActionUtils::GetColorPickerColor(i + 1), known[i]);
        }
        const QColor hsvRed = QColor(Qt::red).toHsv();
        for (const QColor& other :
             {QColor(1, 2, 3), QColor(255, 0, 0, 254), QColor(Qt::darkGreen), QColor(), hsvRed})
            QCOMPARE(CActionUtils::GetColorPickerIndex(other), 11);
        for (const int index : {0, 11, -1, 12, INT_MIN, INT_MAX})
            QCOMPARE(CActionUtils::GetColorPickerColor(index), QColor(Qt::black));
    }

    void writesBorderDashes_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<double>("width");
        QTest::addColumn<QString>("dash");
        QTest::newRow("dashes") << 1 << 1.0 << "10 4";
        QTest::newRow("short dashes") << 2 << 1.0 << "6 4";
        QTest::newRow("truncated") << 3 << 0.5 << "7 3 3 3";
        QTest::newRow("no width") << 4 << 0.0 << "5 2 2 2 2 2";
        QTest::newRow("truncated toward zero") << 1 << -1.3 << "-1 0";
        QTest::newRow("beyond int") << 2 << 1e300 << "2147483647 2147483647";
        QTest::newRow("not a number") << 2 << std::numeric_limits<double>::quiet_NaN() << "0 0";
        QTest::newRow("style 0") << 0 << 1.0 << "invalid";
        QTest::newRow("style 5") << 5 << 1.0 << "invalid";
    }

    void writesBorderDashes()
    {
        QFETCH(int, style);
        QFETCH(double, width);
        QTEST(CActionUtils::GetBorderDash(style, width), "dash");
    }

    void listsStandardFonts()
    {
        QComboBox box;
        box.addItem("before");
        CActionUtils::SetupStandardFontsComboBox(&box);
        QCOMPARE(labels(box), QStringList({"Arial", "Times New Roman", "Courier"}));
    }

    void splitsTheFontList_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("line breaks at the end") << "Arial\r\nCourier\r\n\r\n"
                                                << QStringList{"Arial", "Courier"};
        QTest::newRow("empty") << "" << QStringList{};
        QTest::newRow("line breaks alone") << "\r\n\r\n" << QStringList{};
        QTest::newRow("empty names before others stay") << "\r\nA\r\n\r\nB" << QStringList{"", "A", "", "B"};
        QTest::newRow("a line feed parts nothing") << "A\nB" << QStringList{"A\nB"};
        QTest::newRow("letters outside the basic plane")
            << QString::fromUtf8("\xf0\x9d\x94\x84") + "\r\nB"
            << QStringList{QString::fromUtf8("\xf0\x9d\x94\x84"), "B"};
    }

    void splitsTheFontList()
    {
        QFETCH(QString, list);
        Recorder recorder;
        recorder.returns("GetInstalledFontsByCharset(2, 1)", list.toStdWString());
        libraryFile = RECORDER_FILE;
        QComboBox box;
        box.addItem("before");
        CActionUtils::SetupSystemFontsComboBox(&box);
        QTEST(labels(box), "names");
        const QStringList log = recorder.takeLog();
        QCOMPARE(log.first(), QString("CreateLibrary()"));
        QCOMPARE(log.last(), QString("ReleaseLibrary()"));
    }

    void emptiesTheBoxWithoutALibrary()
    {
        for (const char* file : {"/missing/library", RECORDER_WITHOUT_OPERATION}) {
            libraryFile = file;
            QComboBox box;
            box.addItem("before");
            CActionUtils::SetupSystemFontsComboBox(&box);
            QCOMPARE(box.count(), 0);
        }
    }

    // The loader's own search finds the library file beside the plug-in.
    void listsTheMachinesFonts()
    {
        if (!QFile::exists(ENGINE_FILE))
            QSKIP("The library file is not built.");
        QComboBox box;
        CActionUtils::SetupSystemFontsComboBox(&box);
        QVERIFY(box.count() > 0);
        QVERIFY(box.findText("DejaVu Sans") >= 0);
    }

    void writesASheet()
    {
        const QImage sheet = renderedSheet();
        QVERIFY(!sheet.isNull());
        const QString folder = qEnvironmentVariable("QUINTAR_WRITE_SHEETS");
        if (folder.isEmpty())
            QSKIP("QUINTAR_WRITE_SHEETS names no folder.");
        const QString file = QString("%1/pickers-%2x.png").arg(folder).arg(qApp->devicePixelRatio());
        QVERIFY(sheet.save(file));
        qInfo() << "written:" << file;
    }
};

QTEST_MAIN(TestPickers)
#include "TestPickers.moc"
