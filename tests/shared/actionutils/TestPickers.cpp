#include "CActionUtils.h"
#include "support/Recorder.h"
#include "support/Rows.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QPointer>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <QtTest>

#include <cmath>
#include <functional>
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

} // namespace

// The linker wraps under these names. NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __real_dlopen(const char* file, int mode);

void* __wrap_dlopen(const char* file, int mode)
{
    const bool bareName = qstrcmp(file, "TelvarPDFLibraryCPDylib1311.dylib") == 0;
    return __real_dlopen(bareName && libraryFile != nullptr ? libraryFile : file, mode);
}
}
// NOLINTEND(bugprone-reserved-identifier)

class TestPickers : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { libraryFile = nullptr; }

    void laysOutRows_data()
    {
        const Rows<SetUp, int, QSize, int, int, int> row;
        const int usual = QComboBox().maxVisibleItems();
        row("colour with none", colorsWithNone, 12, {15, 15}, 17, 204, 4);
        row("colour", colors, 11, {15, 15}, 17, 187, 4);
        row("line style", lineStyles, 5, {70, 14}, 15, 75, usual);
        row("underline style", underlineStyles, 7, {70, 16}, 19, 133, 8);
        row("line weight", lineWeights, 12, {30, 14}, 15, 180, usual);
    }

    void laysOutRows()
    {
        const auto [setUp, rows, iconSize, rowHeight, popupHeight, visible] =
            Rows<SetUp, int, QSize, int, int, int>::current();
        QComboBox box;
        box.resize(150, 24);
        setUp(&box);
        QCOMPARE(box.count(), rows);
        QCOMPARE(box.model()->columnCount(), 1);
        QCOMPARE(box.iconSize(), iconSize);
        QCOMPARE(box.maxVisibleItems(), visible);
        QVERIFY(qobject_cast<QStandardItemModel*>(box.model()) != nullptr);
        QVERIFY(box.model()->parent() == nullptr);

        auto* view = qobject_cast<QTableView*>(box.view());
        QVERIFY(view != nullptr);
        QVERIFY(view->horizontalHeader()->isHidden() && view->verticalHeader()->isHidden());
        QCOMPARE(view->iconSize(), iconSize);
        QCOMPARE(view->styleSheet(), QString("QTableView {gridline-color: white; background-color: white; "
                                             "selection-background-color: lightblue;}"));
        box.show();
        box.showPopup();
        QCOMPARE(view->size(), QSize(148, popupHeight));
        QCOMPARE(view->columnWidth(0), 148);
        for (int row = 0; row < box.count(); ++row)
            QCOMPARE(view->rowHeight(row), rowHeight);
        QCOMPARE(view->rowViewportPosition(box.count() - 1) + view->rowHeight(0), popupHeight);
        box.resize(0, 0);
        setUp(&box);
        QCOMPARE(qobject_cast<QTableView*>(box.view())->columnWidth(0), 0);
    }

    void leavesNothingBehind()
    {
        for (const SetUp& setUp : {colorsWithNone, colors, lineStyles, underlineStyles, lineWeights}) {
            QStandardItemModel callers;
            auto box = std::make_unique<QComboBox>();
            QList<QPointer<QObject>> made;
            for (const bool foreignModel : {true, false, true}) {
                if (foreignModel)
                    box->setModel(&callers);
                setUp(box.get());
                for (const auto& earlier : qAsConst(made))
                    QVERIFY(foreignModel || earlier.isNull());
                made << box->model() << box->view();
            }
            box.reset();
            for (const auto& each : qAsConst(made))
                QVERIFY(each.isNull());
            QCOMPARE(callers.rowCount(), 0);
        }
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
        QCOMPARE(sample(box, 2).size(), QSize(15, 15));
        for (const QPoint edge : {QPoint(0, 7), QPoint(14, 7), QPoint(7, 0), QPoint(7, 14)})
            QCOMPARE(sample(box, 2).pixelColor(edge), QColor(Qt::black));
        QCOMPARE(sample(box, 2).pixelColor(1, 13), QColor(Qt::white));
        QVERIFY(!box.itemData(11, Qt::UserRole + 1).isValid());
        QCOMPARE(box.itemData(11, Qt::UserRole).value<QColor>(), QColor(255, 255, 255, 255));
        QCOMPARE(sample(box, 11).pixelColor(7, 7), QColor(Qt::white));
    }

    void drawsLines_data()
    {
        const Rows<SetUp, int, QString, QString, QColor> add;
        const auto row = [&add](const char* what, const SetUp& setUp, int line, const char* across,
                                const char* down, const QColor& color = Qt::black) {
            add(what, setUp, line, across, down, color);
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
        row("0.75", lineWeights, 3, "3-27", "7-7", QColor(60, 60, 60));
        row("1", lineWeights, 4, "3-27", "7-7");
        row("4", lineWeights, 9, "1-28", "5-8");
        row("6", lineWeights, 11, "0-29", "4-9");
    }

    void drawsLines()
    {
        const auto [setUp, row, across, down, color] = Rows<SetUp, int, QString, QString, QColor>::current();
        QComboBox box;
        setUp(&box);
        const QImage image = sample(box, row);
        const int line = image.height() == 16 ? 9 : 7;
        QCOMPARE(stretches(image, QPoint(0, line), QPoint(1, 0)), across);
        QCOMPARE(stretches(image, QPoint(15, 0), QPoint(0, 1)), down);
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

    void writesBorderDashes()
    {
        const std::tuple<int, double, QString> dashes[] = {
            {1, 1.0, "10 4"},         {2, 1.0, "6 4"},     {3, 0.5, "7 3 3 3"},
            {4, 0.0, "5 2 2 2 2 2"},  {1, -1.3, "-1 0"},   {2, 1e300, "2147483647 2147483647"},
            {2, std::nan(""), "0 0"}, {0, 1.0, "invalid"}, {5, 1.0, "invalid"}};
        for (const auto& [style, width, dash] : dashes)
            QCOMPARE(CActionUtils::GetBorderDash(style, width), dash);
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
        const Rows<QString, QStringList> row;
        row("line breaks at the end", "Arial\r\nCourier\r\n\r\n", {"Arial", "Courier"});
        row("empty", "", {});
        row("empty names before others stay", "\r\nA\r\n\r\nB", {"", "A", "", "B"});
        row("a line feed parts nothing", "A\nB", {"A\nB"});
        row("letters outside the basic plane", QString::fromUtf8("\xf0\x9d\x94\x84") + "\r\nB",
            {QString::fromUtf8("\xf0\x9d\x94\x84"), "B"});
    }

    void splitsTheFontList()
    {
        const auto [list, names] = Rows<QString, QStringList>::current();
        Recorder recorder;
        recorder.returns("GetInstalledFontsByCharset(2, 1)", list.toStdWString());
        libraryFile = RECORDER_FILE;
        QComboBox box;
        box.addItem("before");
        CActionUtils::SetupSystemFontsComboBox(&box);
        QCOMPARE(labels(box), names);
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
};

QTEST_MAIN(TestPickers)
#include "TestPickers.moc"
