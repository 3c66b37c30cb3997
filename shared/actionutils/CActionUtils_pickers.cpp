#include "CActionUtils.h"

#include "SaturatedInt.h"
#include "TelvarPDFLibraryCPDylibCPP1311.h"
#include "ViewNumbers.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLine>
#include <QObjectCleanupHandler>
#include <QPainter>
#include <QPen>
#include <QPixmap>
#include <QStandardItemModel>
#include <QTableView>
#include <QVector>

namespace {

/// One drawn row.
struct Sample
{
    QString label;
    QVector<QLine> lines;
    QPen pen;
    QColor background = Qt::transparent;
    QVector<QRect> outlines;
    QVariant value;
};

struct Picker
{
    QSize iconSize;
    bool hasNoneRow;
    QVector<Sample> samples;
    int rowHeight;
    int visibleItems; ///< 0 leaves the box's own number.
};

struct NamedColor
{
    const char* label;
    QColor color;
};

const QColor orange(255, 127, 0, 255);
const QColor defaultCustomColor(255, 255, 255, 255);

/// In the order of the colour picker, whose row of the first of them is 1.
const QVector<NamedColor> namedColors{
    {"Black", Qt::black}, {"White", Qt::white},     {"Gray", Qt::gray},   {"Red", Qt::red},
    {"Orange", orange},   {"Yellow", Qt::yellow},   {"Green", Qt::green}, {"Cyan", Qt::cyan},
    {"Blue", Qt::blue},   {"Fuchsia", Qt::magenta},
};

const char* const noneLabel = "(none)";
const char* const popupStyle =
    "QTableView {gridline-color: white; background-color: white; selection-background-color: lightblue;}";
/// Marks the models made here, so that the next set-up of a box ends no model of the caller's.
const char* const modelOwner = "quintarPickerModel";

Sample swatch(const QString& label, const QColor& color)
{
    Sample sample;
    sample.label = label;
    sample.background = color;
    sample.outlines = {QRect(QPoint(0, 0), QPoint(13, 13))};
    return sample;
}

Sample stroke(const QVector<QLine>& lines, int width, Qt::PenStyle style, const QColor& color = Qt::black)
{
    Sample sample;
    sample.lines = lines;
    sample.pen = QPen(color, width, style);
    return sample;
}

Picker colorPicker(bool none)
{
    QVector<Sample> samples;
    for (const NamedColor& named : namedColors) {
        Sample sample = swatch(named.label, named.color);
        sample.value = named.color;
        samples.append(sample);
    }
    samples.append(swatch("Custom...", Qt::white));
    return {QSize(15, 15), none, samples, 17, 4};
}

Picker lineStylePicker()
{
    QVector<Sample> samples;
    for (const Qt::PenStyle style :
         {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine})
        samples.append(stroke({QLine(15, 7, 60, 7)}, 2, style));
    return {QSize(70, 14), false, samples, 15, 0};
}

Picker underlineStylePicker()
{
    const QLine single(5, 9, 65, 9);
    const QVector<Sample> samples{
        stroke({single}, 1, Qt::SolidLine),
        stroke({QLine(5, 8, 65, 8), QLine(5, 10, 65, 10)}, 1, Qt::SolidLine),
        stroke({single}, 3, Qt::SolidLine),
        stroke({single}, 1, Qt::DotLine),
        stroke({single}, 1, Qt::DashLine),
        stroke({single}, 1, Qt::DashDotLine),
    };
    return {QSize(70, 16), true, samples, 19, 8};
}

Picker lineWeightPicker()
{
    struct Weight
    {
        const char* label;
        int gray; ///< Weights below one pixel differ by shade.
        int width;
    };
    // clang-format off
    static constexpr Weight weights[] = {
        {"0.1", 200, 1}, {"0.25", 170, 1}, {"0.5", 140, 1}, {"0.75", 60, 1}, {"1", 0, 1}, {"1.5", 0, 2},
        {"2", 0, 2},     {"2.5", 0, 3},    {"3", 0, 3},     {"4", 0, 4},     {"5", 0, 5}, {"6", 0, 6},
    };
    // clang-format on
    QVector<Sample> samples;
    for (const auto& [label, gray, width] : weights) {
        samples.append(stroke({QLine(3, 7, 27, 7)}, width, Qt::SolidLine, QColor(gray, gray, gray)));
        samples.last().label = label;
    }
    return {QSize(30, 14), false, samples, 15, 0};
}

QPixmap painted(const Sample& sample, const QSize& size)
{
    QPixmap pixmap(size);
    pixmap.fill(sample.background);
    QPainter painter(&pixmap);
    painter.setPen(sample.pen);
    painter.drawLines(sample.lines);
    painter.drawRects(sample.outlines);
    return pixmap;
}

QStandardItem* itemFor(const Sample& sample, const QSize& iconSize)
{
    auto* item = new QStandardItem;
    if (!sample.label.isEmpty())
        item->setText(sample.label);
    if (sample.value.isValid())
        item->setData(sample.value);
    item->setData(QIcon(painted(sample, iconSize)), Qt::DecorationRole);
    return item;
}

QStandardItemModel* modelFor(const Picker& picker)
{
    auto* model = new QStandardItemModel(0, 0, nullptr);
    if (picker.hasNoneRow)
        model->setItem(0, new QStandardItem(noneLabel));
    for (const Sample& sample : picker.samples)
        model->setItem(model->rowCount(), itemFor(sample, picker.iconSize));
    return model;
}

/// The model has no parent: delete it together with the box, or when it is replaced.
void installModel(QComboBox* box, QStandardItemModel* model)
{
    auto* const previous = box->findChild<QObjectCleanupHandler*>(modelOwner);
    box->setModel(model);
    delete previous;
    auto* const owner = new QObjectCleanupHandler;
    owner->setObjectName(modelOwner);
    owner->setParent(box);
    owner->add(model);
}

void fitView(QTableView* view, int width, int rows, int rowHeight)
{
    // Headers refuse sections below their minimum, even hidden ones.
    view->horizontalHeader()->setMinimumSectionSize(0);
    view->verticalHeader()->setMinimumSectionSize(0);
    view->setColumnWidth(0, width);
    for (int row = 0; row < rows; ++row)
        view->setRowHeight(row, rowHeight);
    view->setFixedWidth(width);
    view->setFixedHeight(rows * rowHeight);
}

void setUp(QComboBox* box, const Picker& picker)
{
    box->setIconSize(picker.iconSize);
    QStandardItemModel* const model = modelFor(picker);
    auto* view = new QTableView(box);
    installModel(box, model);
    box->setView(view);
    view->verticalHeader()->hide();
    view->horizontalHeader()->hide();
    view->setIconSize(picker.iconSize);
    fitView(view, qMax(0, box->width() - 2), model->rowCount(), picker.rowHeight);
    if (picker.visibleItems > 0)
        box->setMaxVisibleItems(picker.visibleItems);
    view->setStyleSheet(popupStyle);
}

void append(QComboBox* box, const QStringList& names)
{
    box->insertItems(box->count(), names);
}

QStringList namesIn(const QString& fontList)
{
    QStringList names = fontList.split("\r\n");
    while (!names.isEmpty() && names.last().isEmpty())
        names.removeLast();
    return names;
}

} // namespace

void CActionUtils::SetupColorPickerComboBox(QComboBox* box, bool none)
{
    setUp(box, colorPicker(none));
    // "Custom..." is the last row, with and without the row "(none)".
    box->setItemData(box->count() - 1, defaultCustomColor, Qt::UserRole);
}

void CActionUtils::SetupLineStylePickerComboBox(QComboBox* box)
{
    setUp(box, lineStylePicker());
}

void CActionUtils::SetupUnderlineStylePickerComboBox(QComboBox* box)
{
    setUp(box, underlineStylePicker());
}

void CActionUtils::SetupLineWeightPickerComboBox(QComboBox* box)
{
    setUp(box, lineWeightPicker());
}

void CActionUtils::SetupStandardFontsComboBox(QComboBox* box)
{
    box->clear();
    append(box, {"Arial", "Times New Roman", "Courier"});
}

void CActionUtils::SetupSystemFontsComboBox(QComboBox* box)
{
    box->clear();
    TelvarPDFLibraryCPDylibCPP1311 library(L"TelvarPDFLibraryCPDylib1311.dylib");
    if (!library.LibraryLoaded())
        return;
    const std::wstring fonts =
        library.GetInstalledFontsByCharset(pdflibrary::AllCharacterSets, pdflibrary::FontFamilyNames);
    append(box, namesIn(QString::fromUcs4(reinterpret_cast<const char32_t*>(fonts.data()),
                                          static_cast<int>(fonts.size()))));
}

QColor CActionUtils::GetColorPickerColor(int index)
{
    return index >= 1 && index <= namedColors.size() ? namedColors.at(index - 1).color : QColor(Qt::black);
}

int CActionUtils::GetColorPickerIndex(QColor color)
{
    int index = 1;
    while (index <= namedColors.size() && namedColors.at(index - 1).color != color)
        ++index;
    return index;
}

QString CActionUtils::GetBorderDash(int style, double width)
{
    const QString dash = QString::number(saturatedInt(5 * width + 5));
    const QString gap = QString::number(saturatedInt(2 * width + 2));
    const QString shortDash = QString::number(saturatedInt(3 * width + 3));
    switch (style) {
    case 1:
        return QStringList{dash, gap}.join(' ');
    case 2:
        return QStringList{shortDash, gap}.join(' ');
    case 3:
        return QStringList{dash, gap, gap, gap}.join(' ');
    case 4:
        return QStringList{dash, gap, gap, gap, gap, gap}.join(' ');
    default:
        return "invalid";
    }
}
