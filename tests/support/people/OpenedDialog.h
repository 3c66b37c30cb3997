#pragma once

#include <QDir>
#include <QMap>
#include <QRadioButton>
#include <QVariant>
#include <QtTest>

/// A dialog of `shared/lists` that has been opened over settings.
template <class Dialog>
class OpenedDialog : public Dialog
{
public:
    OpenedDialog(QWidget& parent, QMap<QString, QVariant>& prefs) : Dialog(&parent)
    {
        this->LoadPrefsData(&prefs);
        this->show();
        QVERIFY(QTest::qWaitForWindowActive(this));
    }
};

inline void click(QWidget* widget)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                      qobject_cast<QRadioButton*>(widget) ? QPoint(10, widget->height() / 2) : QPoint());
}

inline QStringList filesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden);
}
