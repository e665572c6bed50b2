#pragma once

#include "app/models/projectsearchrun.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QFutureWatcher>

#include <optional>
#include <set>
#include <tuple>

namespace vl::core {
class ChangeSet;
}

namespace vl::app {

class Workspace;

/// A search through the whole project, and the replacing of what it found. It searches on another
/// thread in a copy that shares its data; its rows are objects, each followed by the places found
/// in it. Nothing is changed before replaceTicked().
class ProjectSearchModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum class Kind
    {
        Document,
        Chapter,
        Screenplay,
        Note,
        Entity,
        Category,
        Comment,
        Timeline,
        Other
    };
    enum Role
    {
        IsHeaderRole = Qt::UserRole, ///< the row names an object, the rows below it its places
        KindRole,                    ///< Kind as int, of a header
        PathRole,                    ///< of a header: where the object stands
        CountRole,                   ///< of a header: how many places follow
        FieldRole,                   ///< of a place: in which text; empty for the body itself
        BeforeRole,
        MatchRole,
        AfterRole,
        ReplacementRole, ///< what comes in place of it, while something is to be replaced
        IsReplaceableRole,
    };
    /// Places listed at most.
    static constexpr int maximumPlaces = 10000;

    explicit ProjectSearchModel(Workspace &workspace, QObject *parent = nullptr);
    ~ProjectSearchModel() override;

    /// Takes away what was found and searches anew; an empty pattern finds nothing. What is typed
    /// in an editor is handed in first.
    void start(const SearchOptions &options, SearchScopes scopes);
    /// Searches the same again; places whose tick was taken away stay without.
    void restart();
    /// Keeps what was found until now.
    void cancel();
    bool isRunning() const { return m_isRunning; }
    /// Why there is nothing to be found, or no more; empty when all went well.
    const QString &error() const { return m_error; }
    /// Whether there are more places than are listed.
    bool isCut() const { return m_isCut; }
    int placeCount() const { return m_placeCount; }
    int objectCount() const { return int(m_groups.size()); }

    /// What the places are to be replaced with; nothing while there is nothing to be replaced.
    void setReplacement(const std::optional<QString> &replacement, bool keepsCase);
    bool replaces() const { return m_replacement.has_value(); }
    int tickedCount() const { return m_tickedCount; }
    void tickAll(bool ticked);

    struct Replaced
    {
        int places = 0;
        int objects = 0;
        int leftAlone = 0; ///< their text is another one by now
    };
    /// Replaces the ticked places as one step of the history.
    Replaced replaceTicked();

    /// Where a row leads to.
    struct Place
    {
        SearchTarget target;
        TextField field = TextField::Title;
        std::optional<SearchMatch> match; ///< of a place
    };
    std::optional<Place> placeAt(int row) const;
    /// Selects what a row leads to; a place in a document's text is shown in the editor. Gives the
    /// kind of what is selected now.
    std::optional<Kind> open(int row);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// A search began, went on or ended; see isRunning().
    void stateChanged();
    void progressed(int done, int total);
    /// The ticks or what is to be replaced changed.
    void ticksChanged();
    /// The project changed since the search: its result may be another one now.
    void outdated();

private:
    struct Hit
    {
        int number = 0;  ///< of the text in its target
        int ordinal = 0; ///< of the place in its text
        TextField field = TextField::Title;
        QString detail;
        SearchMatch match;
        QString before;
        QString matched;
        QString after;
        bool isReplaceable = true;
        bool isTicked = true;
    };
    struct Group
    {
        SearchTarget target;
        Kind kind = Kind::Other;
        QString title;
        QString path;
        int ticked = 0;
        std::vector<Hit> hits;
        std::map<int, QString> texts; ///< as they were searched, by number
    };
    struct Row
    {
        int group = 0;
        int hit = -1; ///< -1 for the header
    };
    using HitKey = std::tuple<int, core::ContentId, int, int>;

    void begin(const std::set<HitKey> &unticked);
    void clear();
    void take(const SearchBatch &batch);
    void ended();
    Group makeGroup(const SearchTarget &target) const;
    void follow(const core::ChangeSet &changes);
    void setTicked(Group &group, Hit &hit, bool ticked);
    QString replacementOf(const Hit &hit) const;
    static HitKey keyOf(const Group &group, const Hit &hit);
    std::map<int, QString> newTexts(const Group &group, Replaced &result) const;
    QVariant groupData(const Group &group, int role) const;
    QVariant hitData(const Hit &hit, int role) const;

    Workspace &m_workspace;
    SearchOptions m_options;
    SearchScopes m_scopes = everywhere;
    std::shared_ptr<const std::vector<SearchText>> m_texts;
    QFutureWatcher<SearchBatch> m_watcher;
    bool m_isRunning = false;
    bool m_isReplacing = false;
    QString m_error;
    bool m_isCut = false;
    std::set<HitKey> m_unticked; ///< of the search before
    std::vector<Group> m_groups;
    std::vector<Row> m_rows;
    int m_placeCount = 0;
    int m_tickedCount = 0;
    std::optional<QString> m_replacement;
    bool m_keepsCase = false;
};

/// What a field is called, in the interface language.
QString textFieldName(TextField field);

} // namespace vl::app
