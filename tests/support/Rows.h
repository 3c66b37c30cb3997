#pragma once

#include <QtTest>

#include <tuple>
#include <typeinfo>

template <class... Values>
struct QMetaTypeId<std::tuple<Values...>>
{
    enum { Defined = 1 };
    static int qt_metatype_id()
    {
        static const int id = qRegisterMetaType(typeid(std::tuple<Values...>).name(),
                                                reinterpret_cast<std::tuple<Values...>*>(quintptr(-1)));
        return id;
    }
};

/// A table of data for a test function:
///
///     void adds_data()
///     {
///         const Rows<int, int, QString> row;
///         row("small", 1, 2, "3");
///     }
///
///     void adds()
///     {
///         const auto [first, second, sum] = Rows<int, int, QString>::current();
template <class... Values>
class Rows
{
public:
    Rows() { QTest::addColumn<std::tuple<Values...>>("values"); }

    void operator()(const QString& name, const Values&... values) const
    {
        QTest::newRow(qPrintable(name)) << std::tuple<Values...>(values...);
    }

    /// The row that the test function runs with.
    static std::tuple<Values...> current()
    {
        QFETCH(std::tuple<Values...>, values);
        return values;
    }
};
