#pragma once

#include "host/desktop/workbench/Workbench.h"

#include <QWidget>

#include <functional>

/// Asks whether what writes is to be stopped, for the window or the desktop's session is about to end.
namespace host::desktop::stopquestion {

/// \param verb what the button for it says. \param then what follows if so.
void ask(QWidget* parent, const Workbench& workbench, const QString& verb, const std::function<void()>& then);
/// The same, for callers that have to have the answer before they return. \returns whether it is to be stopped.
bool askNow(QWidget* parent, const Workbench& workbench, const QString& verb);

} // namespace host::desktop::stopquestion
