#include "IniValue.h"

#include "VariantBytes.h"

#include <QDateTime>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QTimeZone>

#include <algorithm>

namespace inivalue {

namespace {

const int deepest = 64;
const QLatin1String variantForm("@Variant(");
const QLatin1String dateForm("@DateTime(");

bool isMarked(const QString& text, QLatin1String form)
{
    return text.startsWith(form) && text.endsWith(')');
}

QString inner(const QString& text, QLatin1String form)
{
    return text.mid(form.size()).chopped(1);
}

/// The numbers of a form like "@Size(1 2)"; empty where it has another number of them.
QVector<int> numbersOf(const QString& text, const char* form, int count)
{
    QVector<int> numbers;
    if (isMarked(text, QLatin1String(form)) && text.count(')') == 1)
        for (const QString& number : inner(text, QLatin1String(form)).split(' '))
            numbers.append(number.toInt());
    return numbers.size() == count ? numbers : QVector<int>();
}

std::optional<QVariant> stored(const QString& bytes, QDataStream::Version version, QString& problem)
{
    const bool areBytes =
        std::all_of(bytes.begin(), bytes.end(), [](QChar each) { return each.unicode() <= 0xff; });
    VariantBytes reader(areBytes ? bytes.toLatin1() : QByteArray(), version);
    std::optional<QVariant> value = reader.read();
    problem = areBytes ? reader.problem() : QString("is damaged");
    return value;
}

QVariant untyped(const QString& text)
{
    if (isMarked(text, QLatin1String("@ByteArray(")))
        return inner(text, QLatin1String("@ByteArray(")).toLatin1();
    if (isMarked(text, QLatin1String("@String(")))
        return inner(text, QLatin1String("@String("));
    if (const auto n = numbersOf(text, "@Rect(", 4); !n.isEmpty())
        return QRect(n[0], n[1], n[2], n[3]);
    if (const auto n = numbersOf(text, "@Size(", 2); !n.isEmpty())
        return QSize(n[0], n[1]);
    if (const auto n = numbersOf(text, "@Point(", 2); !n.isEmpty())
        return QPoint(n[0], n[1]);
    if (text == "@Invalid()")
        return {};
    return text.startsWith("@@") ? text.mid(1) : text;
}

std::optional<QVariant> decodedText(const QString& text, bool isDamaged, QString& problem)
{
    const bool isVariant = isMarked(text, variantForm);
    if (!isVariant && !isMarked(text, dateForm))
        return untyped(text);
    if (!isDamaged)
        return isVariant ? stored(inner(text, variantForm), QDataStream::Qt_4_0, problem)
                         : stored(inner(text, dateForm), QDataStream::Qt_5_6, problem);
    problem = "is damaged";
    return std::nullopt;
}

/// A list with typed values is one of variants; others are lists of texts.
bool isTyped(const QString& text)
{
    return text.startsWith('@') && !text.startsWith("@@");
}

bool hasStoredForm(const QVariant& value, int depth)
{
    const auto all = [depth](const auto& items) {
        return std::all_of(items.begin(), items.end(),
                           [depth](const QVariant& each) { return hasStoredForm(each, depth + 1); });
    };
    if (depth > deepest)
        return false;
    switch (value.userType()) {
    case QMetaType::QVariantMap:
        return all(value.toMap());
    case QMetaType::QVariantHash:
        return all(value.toHash());
    case QMetaType::QVariantList:
        return all(value.toList());
    case QMetaType::QVariant:
        return hasStoredForm(*static_cast<const QVariant*>(value.constData()), depth + 1);
    case QMetaType::QDateTime: // writing one of an unknown zone would crash
        return value.toDateTime().timeSpec() != Qt::TimeZone || value.toDateTime().timeZone().isValid();
    case QMetaType::Void:
    case QMetaType::VoidStar:
    case QMetaType::QObjectStar:
    case QMetaType::QModelIndex:
    case QMetaType::QPersistentModelIndex:
        return false;
    default:
        break;
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    return value.userType() < QMetaType::User || QMetaType::save(stream, value.userType(), value.constData());
}

QString storedForm(const QVariant& value, QLatin1String form, QDataStream::Version version)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(version);
    stream << value;
    return form + QLatin1String(bytes.constData(), bytes.size()) + ')';
}

QString markedText(const QString& text)
{
    if (text.contains(QChar::Null))
        return "@String(" + text + ")";
    return text.startsWith('@') ? "@" + text : text;
}

QString encodedText(const QVariant& value)
{
    const auto bytes = value.userType() == QMetaType::QByteArray ? value.toByteArray() : QByteArray();
    const QRect rect = value.toRect();
    const QSize size = value.toSize();
    const QPoint point = value.toPoint();
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return "@Invalid()";
    case QMetaType::QByteArray:
        return "@ByteArray(" + QLatin1String(bytes.constData(), bytes.size()) + ')';
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Bool:
    case QMetaType::Double:
    case QMetaType::QKeySequence:
        return markedText(value.toString());
    case QMetaType::QRect:
        return QString::asprintf("@Rect(%d %d %d %d)", rect.x(), rect.y(), rect.width(), rect.height());
    case QMetaType::QSize:
        return QString::asprintf("@Size(%d %d)", size.width(), size.height());
    case QMetaType::QPoint:
        return QString::asprintf("@Point(%d %d)", point.x(), point.y());
    case QMetaType::QDateTime:
        return storedForm(value, dateForm, QDataStream::Qt_5_6);
    default:
        return storedForm(value, variantForm, QDataStream::Qt_4_0);
    }
}

bool isWrittenAsList(const QVariant& value)
{
    return value.userType() == QMetaType::QStringList ||
           (value.userType() == QMetaType::QVariantList && value.toList().size() != 1);
}

} // namespace

std::optional<QVariant> decoded(const initext::Value& value, QString& problem)
{
    if (!value.isList)
        return decodedText(value.texts.first(), value.isDamaged, problem);
    QStringList texts = value.texts;
    if (std::none_of(texts.begin(), texts.end(), isTyped)) {
        for (QString& text : texts)
            text = text.startsWith('@') ? text.mid(1) : text;
        return texts;
    }
    QVariantList items;
    for (const QString& text : texts) {
        const std::optional<QVariant> item = decodedText(text, value.isDamaged, problem);
        if (!item)
            return std::nullopt;
        items.append(*item);
    }
    return items;
}

std::optional<initext::Value> encoded(const QVariant& value, QString& problem)
{
    if (!hasStoredForm(value, 0)) {
        problem = "holds something that cannot be stored";
        return std::nullopt;
    }
    initext::Value result;
    if (!isWrittenAsList(value)) {
        result.texts.append(encodedText(value));
        return result;
    }
    for (const QVariant& item : value.toList())
        result.texts.append(encodedText(item));
    result.isList = result.texts.size() > 1;
    if (result.texts.isEmpty()) // an empty text would be a list of one
        result.texts.append("@Invalid()");
    return result;
}

} // namespace inivalue
