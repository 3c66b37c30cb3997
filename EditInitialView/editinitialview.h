#pragma once

#include "shared/CActionInterface.h"

#include <QObject>

/// The action "Initial View": decides how a PDF opens. It keeps no state; all that it works on is lent by
/// the host. shared/CActionInterface.h says what hosts may expect of each operation; here stands what
/// this action does.
class CEditInitialView : public QObject, public CActionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.telvar.quintar.editinitialview")
    Q_INTERFACES(CActionInterface)

public:
    /// Applies the groups of settings whose flags are set, the layout first. A document whose view is as
    /// asked stays as it is. A page that the document does not have becomes page 1. The selected page
    /// stays selected.
    int WorkProc(WorkProcInfoStruct* info) override;
    /// Shows CPrefsDialog. What a document tells replaces the settings that `load` brings, but for
    /// the title bar's.
    int ShowDialogProc(QWidget* parent, DialogLoadStruct* load) override;
    /// Neither this nor the next one has anything to do.
    int PreSequenceProc(WorkProcInfoStruct* info) override;
    int PostSequenceProc(WorkProcInfoStruct* info) override;
    QString GetActionName() override;
    QString GetDisplayName() override;
    QString GetActionHelp() override;
    QString GetGroupName() override;
    int GetActionFlags() override;
    QString GetDefaultIcon() override;
};
