#pragma once

#include <QMap>
#include <QString>
#include <QVariant>
#include <QtPlugin>

#include <cstddef>

class CErrorHandler;
class QWidget;
class TelvarPDFLibraryCPDylibCPP1311;

/// What the host lends an action for one work call. The host builds the record and owns all that it points
/// to; nothing else may use the library instance or the map during the call.
struct WorkProcInfoStruct
{
    /// The library instance; the document to change is the one selected in it. Never null.
    TelvarPDFLibraryCPDylibCPP1311* pPDFLibrary;
    /// Receives a message when the work call fails.
    CErrorHandler* pErrorHandler;
    /// The host's own; actions do not read it.
    char hostFields[16];
    /// The action's settings. Never null.
    QMap<QString, QVariant>* pSettings;
};

static_assert(offsetof(WorkProcInfoStruct, pPDFLibrary) == 0);
static_assert(offsetof(WorkProcInfoStruct, pErrorHandler) == 8);
static_assert(offsetof(WorkProcInfoStruct, hostFields) == 16);
static_assert(offsetof(WorkProcInfoStruct, pSettings) == 32);
static_assert(sizeof(WorkProcInfoStruct) == 40);

/// What the host lends an action for one run of its dialog. The host builds the record and owns all that it
/// points to.
struct DialogLoadStruct
{
    /// The library instance, or null when none is available.
    TelvarPDFLibraryCPDylibCPP1311* pPDFLibrary;
    /// The library's id of the document open in the host, or 0 when none is open.
    int nDocumentID;
    /// The host's own; actions do not read it.
    char hostFields[20];
    /// The settings that the dialog starts from and writes back to. Never null.
    QMap<QString, QVariant>* pSettings;
    /// The host's own; actions do not read it.
    char moreHostFields[8];
    /// Hides the Add To Action button of the dialog's header.
    bool bHideAddToActionButton;
    /// The dialog is not filled from the open document.
    bool bSkipDocumentRead;
};

static_assert(offsetof(DialogLoadStruct, pPDFLibrary) == 0);
static_assert(offsetof(DialogLoadStruct, nDocumentID) == 8 && sizeof(DialogLoadStruct::nDocumentID) == 4);
static_assert(offsetof(DialogLoadStruct, hostFields) == 12);
static_assert(offsetof(DialogLoadStruct, pSettings) == 32);
static_assert(offsetof(DialogLoadStruct, moreHostFields) == 40);
static_assert(offsetof(DialogLoadStruct, bHideAddToActionButton) == 48);
static_assert(offsetof(DialogLoadStruct, bSkipDocumentRead) == 49);

/// How the host talks to an action plug-in, on its GUI thread for the dialog and on one thread at a time for
/// work. The order of the operations is the binary interface.
class CActionInterface
{
public:
    virtual ~CActionInterface() = default;

    /// Applies the settings to the selected document, without saving it.
    /// \returns 0 when it ran to its end, 1 when it failed and left a message in the error store.
    virtual int WorkProc(WorkProcInfoStruct* info) = 0;

    /// Lets the user configure the action in a modal dialog.
    /// \returns 1 when the user accepted and the settings were rewritten, else 0.
    virtual int ShowDialogProc(QWidget* parent, DialogLoadStruct* load) = 0;

    /// Called before the first and after the last work call of a run.
    /// \returns 1.
    virtual int PreSequenceProc(WorkProcInfoStruct* info) = 0;
    virtual int PostSequenceProc(WorkProcInfoStruct* info) = 0;

    virtual QString GetActionName() = 0;
    virtual QString GetDisplayName() = 0;
    /// The action's page in the host's help.
    virtual QString GetActionHelp() = 0;
    /// The group under which the host lists the action.
    virtual QString GetGroupName() = 0;
    virtual int GetActionFlags() = 0;
    /// Three image file names separated by "#": normal, selected, disabled; below
    /// ":/Quintar/Resources/Tools/".
    virtual QString GetDefaultIcon() = 0;
};

Q_DECLARE_INTERFACE(CActionInterface, "com.Telvar.Quintar.ActionInterface_1.0")
