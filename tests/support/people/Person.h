#pragma once

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

#include <functional>

/// A person at the dialogs of a program, who answers each as it comes up. Dialogs are known by their class's
/// name, so that they may stem from a loaded module.
namespace person {

using Answer = std::function<void(QDialog&)>;

inline void whenOpens(const char* dialogClass, const Answer& answer)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, [timer, dialogClass, answer] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->inherits(dialogClass) || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        answer(*dialog);
    });
    timer->start(10);
}

template <class Widget>
Widget* widget(QDialog& dialog, const char* name)
{
    auto* found = dialog.findChild<Widget*>(name);
    if (found == nullptr)
        qFatal("No widget %s", name);
    return found;
}

inline void click(QDialog& dialog, const char* button)
{
    QTest::mouseClick(widget<QWidget>(dialog, button), Qt::LeftButton);
}

inline void pressOk(QDialog& dialog)
{
    click(dialog, "okButton");
}

inline void pressCancel(QDialog& dialog)
{
    click(dialog, "cancelButton");
}

/// Types a file's name into the file dialog that opens next.
inline void namesFile(const QString& path)
{
    whenOpens("QFileDialog", [path](QDialog& dialog) {
        auto* name = widget<QLineEdit>(dialog, "fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}

/// The names of the widgets that Tab reaches, beginning with the one that has the focus.
inline QStringList tabOrder(const QWidget& dialog)
{
    QStringList order;
    while (!order.contains(dialog.focusWidget()->objectName())) {
        order << dialog.focusWidget()->objectName();
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    return order;
}

} // namespace person
