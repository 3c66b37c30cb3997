#pragma once

#include "DocumentTable.h"

#include <QString>

#include <functional>

namespace host::desktop {

/// Takes adding to the list, removing from it, and what is edited besides back, and does it again. A step keeps the
/// records that are not in the list, so that nothing need be read once more.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    explicit EditHistory(DocumentTable& table, QObject* parent = nullptr);

    /// What is added from now on belongs to one step, however many parts it comes in.
    void beginAdding();
    void added(const DocumentTable::Ids& ids);
    void remove(const DocumentTable::Ids& ids);
    /// Something that is no part of the list was set.
    struct Setting
    {
        /// What it is called; empty for several things at once.
        QString name;
        /// Key by key: such settings of one name, one after the other, are one step.
        bool isTyped = false;
        /// Sets it to what it was before, and the next time to what it has been since.
        std::function<void()> turn;
    };
    void set(Setting setting);

    bool canUndo() const { return m_next > 0; }
    bool canRedo() const { return m_next < m_steps.size(); }
    /// "Undo Adding 3 Documents", "Undo Setting “Panel”"
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
        enum class Kind { Adding, Removal, Setting };

        Kind kind = Kind::Adding;
        DocumentTable::Ids ids = {};
        std::vector<DocumentRecord> kept = {};
        /// Of Adding.
        int batch = 0;
        Setting setting = {};
    };

    void push(Step step);
    void turn(Step& step);
    static QString textOf(const Step& step, bool again);

    DocumentTable& m_table;
    std::vector<Step> m_steps;
    std::size_t m_next = 0;
    int m_batch = 0;
};

} // namespace host::desktop
