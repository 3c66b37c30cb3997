#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <cstddef>

class CErrorHandler;
class QWidget;
class TelvarPDFLibraryCPDylibCPP1311;

// How a host and an action plug-in talk to each other.
//
// The host loads the module with Qt's plug-in loader, casts its root object with
// qobject_cast<CActionInterface*>, and from then on uses the interface alone. The root object belongs to the
// loader. An action keeps nothing between two calls: what it works on is lent to it for one call, by pointers
// in one of the two records below.
//
// The layout of the records and the order of the operations are the binary interface. Never change either; an
// operation is added at the end, under a new interface id.

/// What the host lends an action for one work call or one sequence bracket. The host builds the record and
/// owns it and all that it points to. During the call nothing else may use the library instance or the map,
/// and the action keeps no pointer beyond it.
struct WorkProcInfoStruct
{
    /// The library instance. The document to change is the one selected in it, which the action may read and
    /// change but neither saves nor closes. Never null, but the library file behind it may be missing: then
    /// every operation of it returns 0 or empty.
    TelvarPDFLibraryCPDylibCPP1311* pPDFLibrary;
    /// Receives one message, for a person to read, when the work call fails. Never null.
    CErrorHandler* pErrorHandler;
    /// The host's own; actions neither read nor write it.
    char hostFields[16];
    /// The action's settings, with the keys of its dialog; which keys there are is the action's own matter. A
    /// key that is missing reads as false or 0. Never null; the work call reads it only.
    QMap<QString, QVariant>* pSettings;
};

static_assert(offsetof(WorkProcInfoStruct, pPDFLibrary) == 0);
static_assert(offsetof(WorkProcInfoStruct, pErrorHandler) == 8);
static_assert(offsetof(WorkProcInfoStruct, hostFields) == 16);
static_assert(offsetof(WorkProcInfoStruct, pSettings) == 32);
static_assert(sizeof(WorkProcInfoStruct) == 40);

/// What the host lends an action for one run of its dialog. The host builds the record and owns it and all
/// that it points to; the action keeps no pointer beyond the call.
struct DialogLoadStruct
{
    /// The library instance, or null when none is available. It may be used while the dialog is filled; which
    /// document is selected in it afterwards is left open.
    TelvarPDFLibraryCPDylibCPP1311* pPDFLibrary;
    /// The library's id of the document open in the host, from 1, or 0 when none is open.
    int nDocumentID;
    /// The host's own; actions neither read nor write it.
    char hostFields[20];
    /// The settings that the dialog starts from and writes back to. Empty for an action that is new. Never
    /// null. What is read from the open document goes into it before the dialog is shown, and stays there
    /// when the user cancels; keys of others stay in any case.
    QMap<QString, QVariant>* pSettings;
    /// The host's own; actions neither read nor write it.
    char moreHostFields[8];
    /// Hides the button of the dialog's header that adds the settings to an action list: for a host that is
    /// editing such a list.
    bool bHideAddToActionButton;
    /// The dialog is filled from the settings alone, not from the open document: for settings that are
    /// stored already.
    bool bSkipDocumentRead;
};

static_assert(offsetof(DialogLoadStruct, pPDFLibrary) == 0);
static_assert(offsetof(DialogLoadStruct, nDocumentID) == 8 && sizeof(DialogLoadStruct::nDocumentID) == 4);
static_assert(offsetof(DialogLoadStruct, hostFields) == 12);
static_assert(offsetof(DialogLoadStruct, pSettings) == 32);
static_assert(offsetof(DialogLoadStruct, moreHostFields) == 40);
static_assert(offsetof(DialogLoadStruct, bHideAddToActionButton) == 48);
static_assert(offsetof(DialogLoadStruct, bSkipDocumentRead) == 49);

/// One action.
///
/// Threads: the dialog runs on the host's GUI thread, in an event loop of its own. Work calls may come from
/// any thread, from one at a time for one library instance, and touch no widget. The others may be called
/// from any thread.
///
/// Failures: no operation throws. What fails inside one is turned into its result, and for the work call into
/// a message as well (CatchAllProtocol.h does both for an implementation). Results are plain numbers, and not
/// the same ones everywhere: work says 0 for well, the others 1.
class CActionInterface
{
public:
    /// The host deletes the root object through the plug-in loader, never while a call is under way.
    virtual ~CActionInterface() = default;

    /// Applies the settings to the document that is selected in the library instance. Saving it is the
    /// host's.
    /// \param info never null; lent for the call.
    /// \returns 0 when it ran to its end, though the library may have refused single values, as it tells by
    ///     LastErrorCode; 1 when something was thrown on the way, and then the error store has one message
    ///     more and the document may hold a part of the changes: the host discards it.
    virtual int WorkProc(WorkProcInfoStruct* info) = 0;

    /// Lets the user configure the action in a modal dialog, and returns when it is closed. The document is
    /// not changed. GUI thread.
    /// \param parent the dialog's parent, or null. A parent within a window named "QuintarClass" or
    ///     "QuintarPreviewClass" gives the dialog that window's colours and place.
    /// \param load never null; lent for the call.
    /// \returns 1 when the user accepted and all of the action's keys were rewritten, else 0.
    virtual int ShowDialogProc(QWidget* parent, DialogLoadStruct* load) = 0;

    /// Called once before the first work call of a run over several documents, for what an action prepares.
    /// \param info as for the work calls; which document is selected is left open.
    /// \returns 1; the host does not act on it.
    virtual int PreSequenceProc(WorkProcInfoStruct* info) = 0;

    /// Called once after the last work call of a run, whether or not the calls succeeded.
    /// \returns 1; the host does not act on it.
    virtual int PostSequenceProc(WorkProcInfoStruct* info) = 0;

    /// The name that stored action lists record for the action, in every language the same.
    virtual QString GetActionName() = 0;

    /// The name that people read in the host's list of actions.
    virtual QString GetDisplayName() = 0;

    /// The action's page in the host's help: a file name below ":/Quintar/Resources/HelpFiles/".
    virtual QString GetActionHelp() = 0;

    /// The group under which the host lists the action.
    virtual QString GetGroupName() = 0;

    /// What kind of action it is, one bit for each property. What the bits mean is the host's matter alone:
    /// an action reports the number that it was given there and never acts on it. The number does not change
    /// while the module is loaded.
    virtual int GetActionFlags() = 0;

    /// Three image file names separated by "#": normal, selected, disabled; each below
    /// ":/Quintar/Resources/Tools/" in the host's resources. An image that is missing there leaves that state
    /// of the icon empty.
    virtual QString GetDefaultIcon() = 0;
};

Q_DECLARE_INTERFACE(CActionInterface, "com.Telvar.Quintar.ActionInterface_1.0")
