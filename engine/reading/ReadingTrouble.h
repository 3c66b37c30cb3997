#pragma once

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFObjGen.hh>

#include <set>
#include <string>

namespace engine {

/// What libqpdf's warnings tell of a document's reading so far. libqpdf has no other signs of it.
class ReadingTrouble
{
public:
    /// Takes the warnings that have come since the last call.
    void collect(QPDF& pdf);

    bool any() const { return m_any; }
    bool crossReferenceRebuilt() const { return m_rebuilt; }
    bool streamLengthsRecovered() const { return m_lengthsRecovered; }
    bool memoryWasShort() const { return m_memoryWasShort; }

    /// True when libqpdf could not read an object as it stands, and made something else of it.
    bool misread(QPDFObjGen object) const;
    bool anyMisread() const { return !m_misread.empty(); }
    bool trailerMisread() const;

private:
    void noteMisread(const QPDFExc& warning);

    std::set<std::string> m_misread; // as libqpdf names the objects
    bool m_any = false;
    bool m_rebuilt = false;
    bool m_lengthsRecovered = false;
    bool m_memoryWasShort = false;
};

} // namespace engine
