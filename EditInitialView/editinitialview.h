#pragma once

#include "shared/CActionInterface.h"

#include <QObject>

/// The action "Initial View": decides how a PDF opens. It keeps no state; all that it works on is lent by the
/// host.
class CEditInitialView : public QObject, public CActionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.telvar.quintar.editinitialview")
    Q_INTERFACES(CActionInterface)

public:
    int WorkProc(WorkProcInfoStruct* info) override;
    int ShowDialogProc(QWidget* parent, DialogLoadStruct* load) override;
    int PreSequenceProc(WorkProcInfoStruct* info) override;
    int PostSequenceProc(WorkProcInfoStruct* info) override;
    QString GetActionName() override;
    QString GetDisplayName() override;
    QString GetActionHelp() override;
    QString GetGroupName() override;
    int GetActionFlags() override;
    QString GetDefaultIcon() override;
};
