#pragma once

#include "app/models/inspectorfield.h"
#include "core/id.h"

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QSet>
#include <QtCore/QStringList>

namespace vl::core {
class ChangeSet;
} // namespace vl::core

namespace vl::app {

class Workspace;

/// The form for what is selected: its fields, their values as they are shown and typed, and what
/// is wrong with them. An edit of several objects is one step of the history. A text that a field
/// refuses is kept beside the model, and is there again when its object is.
class InspectorModel final : public QObject
{
    Q_OBJECT

public:
    explicit InspectorModel(Workspace &workspace, QObject *parent = nullptr);
    ~InspectorModel() override;

    /// The objects or the category shown; empty when nothing is.
    const QList<core::ContentId> &ids() const { return m_ids; }
    /// The id of the only object or category shown, null when there are several or none.
    core::ContentId only() const { return m_ids.size() == 1 ? m_ids.first() : core::ContentId(); }
    bool isCategory() const { return m_isCategory; }
    /// What is shown, in one line: "Entity · People", "3 documents".
    const QString &heading() const { return m_heading; }

    const QList<InspectorField> &fields() const { return m_fields; }
    /// The value as it is shown; that of a mixed field is empty, but for tokens, of which it has
    /// those that all objects share.
    QVariant value(const QString &key) const { return m_states.value(key).value; }
    bool isMixed(const QString &key) const { return m_states.value(key).isMixed; }
    /// What is wrong with the value or with what was typed last; empty when nothing is.
    QString problem(const QString &key) const { return m_states.value(key).problem; }
    /// The object that a reference field names, null for none.
    core::ContentId referenced(const QString &key) const;
    /// Words written against the target of the only document shown.
    qsizetype words() const { return m_words; }

    /// Sets the field of all objects as one step. False when the value is refused: it is kept as a
    /// draft then, and problem() tells why.
    bool setValue(const QString &key, const QVariant &value);
    /// Makes the field refer to this object, whatever others have its name.
    void setReference(const QString &key, const core::ContentId &id);
    /// Forgets a draft that was refused.
    void revert(const QString &key);
    QStringList suggestions(const QString &key) const;

Q_SIGNALS:
    /// Other objects come next: what is typed is to be handed in now.
    void aboutToSwitch();
    /// The fields are others, or those of other objects.
    void formChanged();
    void fieldChanged(const QString &key);

private:
    struct State
    {
        QVariant value; ///< as shown
        QVariant raw;   ///< as the objects have it
        bool isMixed = false;
        QString problem;

        bool operator==(const State &) const = default;
    };
    using Draft = std::pair<core::ContentId, QString>;

    void showSelection();
    void forgetProject();
    void follow(const core::ChangeSet &changes);
    bool concerns(const core::ChangeSet &changes) const;
    void rebuild();
    void rebuildCategory();
    QList<core::ContentObject *> objects() const;
    const InspectorAccess *access(const QString &key) const;
    State stateOf(const InspectorAccess &access, const QList<core::ContentObject *> &objects);
    void describe(State &state, const InspectorField &field) const;
    /// The raw value of what was typed, or nothing with the reason in `problem`.
    std::optional<QVariant> parsed(const InspectorField &field, const QVariant &typed,
                                   QString &problem) const;
    std::optional<QVariant> parsedReference(const QString &name, QString &problem) const;
    bool setCategoryValue(const QString &key, const QVariant &value);
    void write(const InspectorAccess &access, const QVariant &raw);
    QString shownInstant(const QVariant &raw) const;
    QString headingFor(const QList<core::ContentObject *> &objects) const;

    Workspace &m_workspace;
    QList<core::ContentId> m_ids;
    bool m_isCategory = false;
    QString m_heading;
    QList<InspectorAccess> m_accesses;
    QList<InspectorField> m_fields;
    QHash<QString, State> m_states;
    QHash<Draft, QVariant> m_drafts; ///< what was typed and refused, by the first object
    QSet<core::ContentId> m_related; ///< objects and categories that the values tell of
    qsizetype m_words = 0;
};

} // namespace vl::app
