#pragma once

#include "app/models/quickopenindex.h"
#include "app/models/quickopenrecents.h"
#include "app/models/textheadings.h"

#include <QtCore/QAbstractListModel>

namespace vl::app {

class Settings;
class Workspace;

/// A command of the program as the palette offers it.
struct QuickOpenCommand
{
    QString id;
    QString text;     ///< without mnemonic
    QString keywords; ///< other names of the same thing, parted by commas
    QString group;    ///< the menu or the part of the window that it belongs to
    QString shortcut; ///< as the user reads it
    bool isEnabled = true;
    QString reason; ///< why it is not to be had now
};

/// What the palette lists for what is typed: documents, entities and commands; after ">" commands
/// alone, after "#" tags and what carries them, after "@" the headings of the current document.
class QuickOpenModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class Kind
    {
        Document,
        Chapter, ///< a document with others below it
        Screenplay,
        Note,
        Entity,
        Command,
        Tag,
        Heading
    };
    Q_ENUM(Kind)
    enum Role
    {
        KindRole = Qt::UserRole, ///< Kind as int
        DetailRole,              ///< where it stands, or why it is not to be had
        MarksRole, ///< QList<int>: places of the text that the query matched, in order
        ShortcutRole,
        IsEnabledRole,
        LevelRole, ///< depth of a heading, from 0
    };
    /// Rows listed at most; totalCount() tells how many there are.
    static constexpr int maximumRows = 200;

    /// What is left to do after a row was chosen.
    struct Choice
    {
        enum class Next
        {
            Nothing,    ///< the row cannot be chosen
            ShowObject, ///< it is selected; what shows it is to have the focus
            ShowText,   ///< the editor shows the place already
            Trigger,    ///< the command of this id
            Query       ///< go on with this text
        };
        Next next = Next::Nothing;
        Kind kind = Kind::Document;
        QString text; ///< the command or the query
    };

    QuickOpenModel(Workspace &workspace, Settings &settings, QObject *parent = nullptr);

    /// Begins anew with these commands and an empty query.
    void start(QList<QuickOpenCommand> commands);
    void setQuery(const QString &query);
    const QString &query() const { return m_query; }
    qsizetype totalCount() const { return m_total; }
    /// Why nothing is listed, or how to go on.
    QString emptyText() const;
    Choice choose(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Row
    {
        Kind kind = Kind::Document;
        core::ContentId id;
        int item = -1;  ///< which command, tag or heading
        int alias = -1; ///< which alias of an entity matched
        int score = 0;
        qsizetype length = 0; ///< of the text; the shorter of two equals stands first
    };

    void addRecent();
    void addObjects();
    void addCommands();
    void addTags();
    void addHeadings();
    void add(const QuickOpenIndex::Hit &hit);
    bool addTagged(const QString &query);
    void sortAndCut();
    Kind kindOf(const core::ContentId &id) const;
    QString textOf(const Row &row) const;
    QString detailOf(const Row &row) const;
    QList<int> marksOf(const Row &row) const;

    Workspace &m_workspace;
    QuickOpenIndex m_index;
    QuickOpenRecents m_recents;
    QList<QuickOpenCommand> m_commands;
    std::vector<std::vector<FuzzyText>> m_commandFaces; ///< text, id and keywords of each
    QList<QuickOpenIndex::Tag> m_tags;
    QList<TextHeading> m_headings;
    QHash<core::ContentId, int> m_recentBonus;
    QHash<QString, int> m_recentCommandBonus;
    QString m_query;
    QList<FuzzyWord> m_words; ///< of the query without its sign
    std::vector<Row> m_rows;
    qsizetype m_total = 0;
};

} // namespace vl::app
