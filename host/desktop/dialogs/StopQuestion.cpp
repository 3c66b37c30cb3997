#include "StopQuestion.h"

#include "host/desktop/platform/Dialogs.h"

#include <QCoreApplication>

namespace host::desktop::stopquestion {

namespace {

QString question(const Workbench& workbench)
{
    return workbench.isUndoing()
               ? QCoreApplication::translate("StopQuestion", "A run is being undone. Stop undoing it?")
               : QCoreApplication::translate("StopQuestion", "A run is under way. Stop it?");
}

QString consequence(const Workbench& workbench)
{
    return workbench.isUndoing()
               ? QCoreApplication::translate(
                     "StopQuestion", "Documents that are being worked on are finished; the others stay "
                                     "as the run left them, and the run can be undone later.")
               : QCoreApplication::translate("StopQuestion",
                                             "Documents that are being worked on are finished; "
                                             "the others stay as they are.");
}

} // namespace

void ask(QWidget* parent, const Workbench& workbench, const QString& verb, const std::function<void()>& then)
{
    dialogs::confirm(parent, question(workbench), consequence(workbench), verb, then);
}

bool askNow(QWidget* parent, const Workbench& workbench, const QString& verb)
{
    return dialogs::confirmNow(parent, question(workbench), consequence(workbench), verb);
}

} // namespace host::desktop::stopquestion
