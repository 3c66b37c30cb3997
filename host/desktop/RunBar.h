#pragma once

#include "host/desktop/look/ElidedLabel.h"

#include "host/desktop/workbench/Workbench.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace host::desktop {

/// What is under way or has come out, in words and numbers, and what can be done about it.
class RunBar : public QWidget
{
    Q_OBJECT

public:
    explicit RunBar(Workbench& workbench, QWidget* parent = nullptr);

    /// Says it in the place of the counts until something else happens.
    void say(const QString& text) { tell(text, false); }
    /// The same, and it went wrong.
    void complain(const QString& text) { tell(text, true); }
    /// The text that stands there now.
    QString text() const { return m_text->text(); }

signals:
    void whyWanted(host::desktop::DocumentFilter::Kind kind);
    void resultsWanted();
    void undoWanted();
    void saveWanted();

private:
    void nameParts();
    void layOutParts();
    void connectParts();
    QPushButton* button(const QString& text, const QString& help);
    DocumentFilter::Kind why() const;
    void tell(const QString& text, bool isTrouble);
    void show();
    void showParts();
    void showProgress();
    QString textToShow() const;
    QString countsInWords() const;
    QString listedInWords() const;
    static QString reasonsInWords(const Workbench::Counts& counts);
    static QString plannedInWords(const Workbench::Counts& counts);
    static QString doneInWords(const Workbench::Counts& counts);
    QString timeLeft() const;
    void announce(const QString& text);

    Workbench& m_workbench;
    QLabel* m_sign;
    ElidedLabel* m_text;
    QProgressBar* m_progress;
    QPushButton* m_why;
    QPushButton* m_results;
    QPushButton* m_undo;
    QPushButton* m_again;
    QPushButton* m_save;
    QPushButton* m_pause;
    QPushButton* m_stop;
    QString m_said;
    QTimer m_unsay;
    bool m_isTrouble = false;
    QElapsedTimer m_running;
    QElapsedTimer m_announced;
};

} // namespace host::desktop
