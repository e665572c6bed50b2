#pragma once

#include "app/base/result.h"
#include "app/models/readablefile.h"
#include "app/storage/outsidescan.h"
#include "app/storage/reconcile.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QString>

#include <vector>

namespace vl::app {

class Workspace;

/// The files that others changed while the project was open: what happened to each in words, its
/// two versions as text for people, and what the user decides about it.
class ExternalChangesModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        File,     ///< what the file is about; its path is the tool tip
        State,    ///< what happened to it
        Decision, ///< what becomes of it
        ColumnCount,
    };
    enum class Choice
    {
        Undecided,
        Mine,
        Theirs,
        Merged, ///< both, as they could be brought together
        ByHand, ///< the user's own text
    };

    /// The entries are those of OutsideMonitor::entries() for the state. Conflicts come first. The
    /// workspace, which outlives the model, tells what the files refer to where there is one.
    ExternalChangesModel(const OutsideState &state, std::vector<ReconcileEntry> entries,
                         const Workspace *workspace = nullptr, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    /// The user's own version and the one on disk as text for people.
    ReadableVersions versions(int row) const;
    Choice choice(int row) const { return m_rows[std::size_t(row)].choice; }
    void chooseMine(int row);
    void chooseTheirs(int row);
    /// Whether there is a text in which both versions can be brought together by hand.
    bool canEdit(int row) const { return !m_rows[std::size_t(row)].markedText.isNull(); }
    /// That text: between the lines "<<<<<<<", "=======" and ">>>>>>>" stand the user's lines, then
    /// those on disk; or what the user last made of it.
    QString editableText(int row) const;
    /// Keeps what the user made of the text so far, and decides nothing.
    void keepText(int row, const QString &text);
    /// Decides for the user's own text. Fails while marker lines are left in it.
    Result<> chooseText(int row, const QString &text);

    /// How many files wait for a decision.
    int undecided() const;
    /// The entries as they were decided.
    std::vector<ReconcileEntry> resolution() const;

private:
    struct Row
    {
        ReconcileEntry entry;
        ReconcileEntry original; ///< before anything was decided
        bool isCopy = false;
        QByteArray base;
        Choice choice = Choice::Undecided;
        QString title;
        QString textKey;    ///< the member of the JSON object that holds the text
        QString markedText; ///< null when there is nothing to edit
    };

    QString stateText(const Row &row) const;
    static QString choiceText(const Row &row);
    static void findEditableText(Row &row);
    void rowChanged(int row);

    const Workspace *m_workspace;
    std::vector<Row> m_rows;
};

} // namespace vl::app
