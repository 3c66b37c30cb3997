#include "Dialogs.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <memory>
#include <optional>

namespace host::desktop::dialogs {

namespace {

std::optional<QStringList> nextAnswer;

std::optional<QStringList> takeAnswer()
{
    return std::exchange(nextAnswer, std::nullopt);
}

QFileDialog* fileDialog(QWidget* parent, const QString& title, QFileDialog::FileMode mode,
                        const QString& folder, const WithNames& then)
{
    auto* dialog = new QFileDialog(parent, title, folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(mode);
    QObject::connect(dialog, &QFileDialog::filesSelected, parent, then);
    return dialog;
}

/// Questions name documents and presets, whose names others chose.
void makePlain(const QDialog& dialog)
{
    for (QLabel* each : dialog.findChildren<QLabel*>())
        each->setTextFormat(Qt::PlainText);
}

QMessageBox* questionBox(QWidget* parent, const QString& question, const QString& more, const QString& verb)
{
    auto* box = new QMessageBox(QMessageBox::Question, QStringLiteral("Quintar"), question,
                                QMessageBox::Cancel, parent);
    box->setInformativeText(more);
    makePlain(*box);
    box->setDefaultButton(box->addButton(verb, QMessageBox::AcceptRole));
    return box;
}

void showInput(QWidget* parent, const QString& title, const QString& label, QLineEdit::EchoMode echo,
               const WithText& then)
{
    if (const auto answer = takeAnswer())
        return then(answer->value(0));
    auto* dialog = new QInputDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setTextEchoMode(echo);
    makePlain(*dialog);
    dialog->resize(420, dialog->sizeHint().height());
    QObject::connect(dialog, &QInputDialog::textValueSelected, parent, then);
    dialog->open();
}

} // namespace

void askFiles(QWidget* parent, const QString& title, const QString& start, const WithNames& then)
{
    if (const auto answer = takeAnswer())
        return then(*answer);
    QFileDialog* dialog = fileDialog(parent, title, QFileDialog::ExistingFiles, start, then);
    dialog->setNameFilters({QCoreApplication::translate("Dialogs", "PDF documents (*.pdf *.PDF)"),
                            QCoreApplication::translate("Dialogs", "All files (*)")});
    dialog->open();
}

void askFolder(QWidget* parent, const QString& title, const QString& start, const WithText& then)
{
    if (const auto answer = takeAnswer())
        return then(answer->value(0));
    QFileDialog* dialog = fileDialog(parent, title, QFileDialog::Directory, start,
                                     [then](const QStringList& names) { then(names.value(0)); });
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->open();
}

void askSaveName(QWidget* parent, const QString& title, const QString& start, const WithText& then)
{
    if (const auto answer = takeAnswer())
        return then(answer->value(0));
    QFileDialog* dialog = fileDialog(parent, title, QFileDialog::AnyFile, QFileInfo(start).path(),
                                     [then](const QStringList& names) { then(names.value(0)); });
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(QFileInfo(start).fileName());
    dialog->open();
}

void askText(QWidget* parent, const QString& title, const QString& label, const WithText& then)
{
    showInput(parent, title, label, QLineEdit::Normal, then);
}

void askPassword(QWidget* parent, const QString& label, const WithText& then)
{
    showInput(parent, QCoreApplication::translate("Dialogs", "Password"), label, QLineEdit::Password, then);
}

void confirm(QWidget* parent, const QString& question, const QString& more, const QString& verb,
             const std::function<void()>& then)
{
    if (takeAnswer())
        return then();
    QMessageBox* box = questionBox(parent, question, more, verb);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box->defaultButton(), &QPushButton::clicked, parent, then);
    box->open();
}

bool confirmNow(QWidget* parent, const QString& question, const QString& more, const QString& verb)
{
    if (takeAnswer())
        return true;
    const std::unique_ptr<QMessageBox> box(questionBox(parent, question, more, verb));
    box->exec();
    return box->clickedButton() == box->defaultButton();
}

void setNextAnswer(const QStringList& answer)
{
    nextAnswer = answer;
}

} // namespace host::desktop::dialogs
