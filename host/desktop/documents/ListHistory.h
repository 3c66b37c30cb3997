#pragma once

#include "DocumentTable.h"

#include <QString>

namespace host::desktop {

/// Takes adding to the list and removing from it back, and does it again. A step keeps the records that are
/// not in the list, so that nothing need be read once more.
class ListHistory : public QObject
{
    Q_OBJECT

public:
    explicit ListHistory(DocumentTable& table, QObject* parent = nullptr);

    /// What follows until the next step belongs to one step, however many parts it comes in.
    void beginAdding();
    void added(const DocumentTable::Ids& ids);
    void remove(const DocumentTable::Ids& ids);

    bool canUndo() const { return m_next > 0; }
    bool canRedo() const { return m_next < m_steps.size(); }
    /// "Undo Adding 3 Documents"
    QString undoText() const;
    QString redoText() const;
    /// \returns what has come back of a removal.
    DocumentTable::Ids undo();
    void redo();

    /// What is changed of all documents is to be changed of those as well that may come back.
    void changeKept(const DocumentTable::Change& change);

signals:
    void changed();

private:
    struct Step
    {
        bool isRemoval = false;
        DocumentTable::Ids ids;
        std::vector<DocumentRecord> kept;
    };

    void push(Step step);
    void turn(Step& step);
    static QString textOf(const Step& step, bool again);

    DocumentTable& m_table;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
};

} // namespace host::desktop
