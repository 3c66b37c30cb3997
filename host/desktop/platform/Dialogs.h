#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>

/// Questions to the person. They are shown without a loop of their own, so that work goes on behind
/// them, and a test can give the answers beforehand.
namespace host::desktop::dialogs {

using WithNames = std::function<void(const QStringList& names)>;
using WithText = std::function<void(const QString& text)>;

/// \param start the folder that is shown first.
void askFiles(QWidget* parent, const QString& title, const QString& start, const WithNames& then);
void askFolder(QWidget* parent, const QString& title, const QString& start, const WithText& then);
/// \param start the name that is proposed, with its folder.
void askSaveName(QWidget* parent, const QString& title, const QString& start, const WithText& then);
void askText(QWidget* parent, const QString& title, const QString& label, const WithText& then);
void askPassword(QWidget* parent, const QString& label, const WithText& then);
/// Calls `then` only for yes. \param verb what the button for it says.
void confirm(QWidget* parent, const QString& question, const QString& more, const QString& verb,
             const std::function<void()>& then);
/// The same, for callers that have to have the answer before they return: it waits for it. \returns whether it is yes.
bool confirmNow(QWidget* parent, const QString& question, const QString& more, const QString& verb);

/// What the next question is answered with instead of being shown. For tests.
void setNextAnswer(const QStringList& answer);

} // namespace host::desktop::dialogs
