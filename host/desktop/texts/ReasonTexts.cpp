#include "ReasonTexts.h"

#include "PlainText.h"

#include <QCoreApplication>

namespace host::desktop::reasontexts {

namespace {

struct Reason
{
    const char* code;
    const char* text;
    Remedy remedy;
    /// For counting; those without are "other".
    const char* brief = nullptr;
};

// clang-format off
const Reason reasons[] = {
    {"signed", QT_TRANSLATE_NOOP("ReasonTexts", "Signed: viewers would report the change."), Remedy::AppendSigned, QT_TRANSLATE_NOOP("ReasonTexts", "signed")},
    {"certified", QT_TRANSLATE_NOOP("ReasonTexts", "Certified: any change breaks the certification."), Remedy::AppendCertified, QT_TRANSLATE_NOOP("ReasonTexts", "certified")},
    {"password", QT_TRANSLATE_NOOP("ReasonTexts", "A password is needed to open it."), Remedy::Password, QT_TRANSLATE_NOOP("ReasonTexts", "password needed")},
    {"permission", QT_TRANSLATE_NOOP("ReasonTexts", "Its owner does not allow changes without the owner's password."), Remedy::Password, QT_TRANSLATE_NOOP("ReasonTexts", "password needed")},
    {"encryption", QT_TRANSLATE_NOOP("ReasonTexts", "It is encrypted in a way that cannot be read here."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "encrypted")},
    {"notPdf", QT_TRANSLATE_NOOP("ReasonTexts", "Not a PDF document."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"emptyFile", QT_TRANSLATE_NOOP("ReasonTexts", "The file is empty."), Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"damaged", QT_TRANSLATE_NOOP("ReasonTexts", "Too damaged to be read."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"uncertain", QT_TRANSLATE_NOOP("ReasonTexts", "Damaged, so it is in doubt what it holds; nothing is changed."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"cannotAppend", QT_TRANSLATE_NOOP("ReasonTexts", "Damaged, so nothing can be added to it."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"tooComplex", QT_TRANSLATE_NOOP("ReasonTexts", "Too complex to be read."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"notFound", QT_TRANSLATE_NOOP("ReasonTexts", "The file is no longer there."), Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"accessDenied", QT_TRANSLATE_NOOP("ReasonTexts", "You may not read or change it here."), Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"notAFile", QT_TRANSLATE_NOOP("ReasonTexts", "Not a file that can be read."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"readFailed", QT_TRANSLATE_NOOP("ReasonTexts", "The disk could not be read."), Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"writeFailed", QT_TRANSLATE_NOOP("ReasonTexts", "The result could not be written."), Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"changedMeanwhile", QT_TRANSLATE_NOOP("ReasonTexts", "Another program has changed it meanwhile."), Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "changed since")},
    {"changedSince", QT_TRANSLATE_NOOP("ReasonTexts", "It has been changed since the run, so it stays."), Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "changed since")},
    {"noSpace", QT_TRANSLATE_NOOP("ReasonTexts", "The disk is full."), Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "disk full")},
    {"readOnly", QT_TRANSLATE_NOOP("ReasonTexts", "It lies where nothing may be written."), Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"timeout", QT_TRANSLATE_NOOP("ReasonTexts", "It took too long and was given up."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "unsafe to read")},
    {"memory", QT_TRANSLATE_NOOP("ReasonTexts", "It needs too much memory and was given up."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "unsafe to read")},
    {"crashed", QT_TRANSLATE_NOOP("ReasonTexts", "Reading it crashed the reader; it is as it was."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "unsafe to read")},
    {"metadata", QT_TRANSLATE_NOOP("ReasonTexts", "Its properties are damaged, so its title cannot be set."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"openAction", QT_TRANSLATE_NOOP("ReasonTexts", "It opens with an action that cannot be taken over."), Remedy::None},
    {"tooLarge", QT_TRANSLATE_NOOP("ReasonTexts", "It is larger than a limit allows."), Remedy::None},
    {"locked", QT_TRANSLATE_NOOP("ReasonTexts", "Another program keeps it locked."), Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "out of reach")},
    {"hostile", QT_TRANSLATE_NOOP("ReasonTexts", "It tried to do what no document needs, and was shut out."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "unsafe to read")},
    {"cannotRewrite", QT_TRANSLATE_NOOP("ReasonTexts", "It cannot be written anew without loss."), Remedy::None, QT_TRANSLATE_NOOP("ReasonTexts", "damaged")},
    {"pageBeyondEnd", QT_TRANSLATE_NOOP("ReasonTexts", "It has no page of this number."), Remedy::None},
    {"refusedCall", QT_TRANSLATE_NOOP("ReasonTexts", "The change was refused while it was made; it is as it was."), Remedy::None},
    {"notInPlace", QT_TRANSLATE_NOOP("ReasonTexts", "It was not changed in place, so there is nothing to undo."), Remedy::ReadAgain},
    {"noUndoRecord", QT_TRANSLATE_NOOP("ReasonTexts", "The report does not tell what stood there before, so it stays."), Remedy::ReadAgain},
    {"badReport", QT_TRANSLATE_NOOP("ReasonTexts", "The report says what no run can have done, so it stays."), Remedy::ReadAgain},
    {"notInReport", QT_TRANSLATE_NOOP("ReasonTexts", "The report tells of no change of it, so it stays."), Remedy::ReadAgain},
    {"internal", QT_TRANSLATE_NOOP("ReasonTexts", "A mistake of this program. Please report it."), Remedy::None},
    {"noProcess", QT_TRANSLATE_NOOP("ReasonTexts", "The computer is too busy: no worker could be started."), Remedy::ReadAgain},
};

struct Button
{
    Remedy remedy;
    const char* text;
};

const Button buttons[] = {
    {Remedy::Password, QT_TRANSLATE_NOOP("ReasonTexts", "&Give Password…")},
    {Remedy::AppendSigned, QT_TRANSLATE_NOOP("ReasonTexts", "Append A&ll the Same")},
    {Remedy::AppendCertified, QT_TRANSLATE_NOOP("ReasonTexts", "Append A&ll the Same")},
    {Remedy::ReadAgain, QT_TRANSLATE_NOOP("ReasonTexts", "Read A&gain")},
    {Remedy::ShowFolder, QT_TRANSLATE_NOOP("ReasonTexts", "Show in Fo&lder")},
};
// clang-format on

const Reason* find(const QString& code)
{
    for (const Reason& each : reasons)
        if (code == each.code)
            return &each;
    return nullptr;
}

QString translate(const char* text)
{
    return QCoreApplication::translate("ReasonTexts", text);
}

} // namespace

QString textOf(const QString& code, const QString& words)
{
    QString own = plaintext::shown(words.simplified());
    if (!own.isEmpty())
        own[0] = own[0].toUpper();
    const Reason* known = find(code);
    if (known == nullptr)
        return own;
    const bool tellsOwn = code == "internal" && !own.isEmpty(); // who reports a mistake needs them
    return tellsOwn ? translate(known->text) + " (" + own + ")" : translate(known->text);
}

QString briefly(const QString& code)
{
    const Reason* known = find(code);
    return translate(known != nullptr && known->brief != nullptr ? known->brief
                                                                 : QT_TRANSLATE_NOOP("ReasonTexts", "other"));
}

Remedy remedyFor(const QString& code)
{
    const Reason* known = find(code);
    return known != nullptr ? known->remedy : Remedy::None;
}

QString buttonOf(Remedy remedy)
{
    for (const Button& each : buttons)
        if (each.remedy == remedy)
            return translate(each.text);
    return {};
}

} // namespace host::desktop::reasontexts
