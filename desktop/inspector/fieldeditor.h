#pragma once

#include "app/models/inspectorfield.h"
#include "core/id.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QVBoxLayout;

namespace vl::app {
class InspectorModel;
class ReferencesModel;
class Workspace;
} // namespace vl::app

namespace vl::desktop {

struct PanelContext;

/// What the editors of one inspector share; all of it outlives them.
struct FieldEditorContext
{
    const PanelContext &panel;
    app::InspectorModel &model;
    app::ReferencesModel &references;
};

/// One field of the inspector: its label, the control below it, and under that what is wrong with
/// the value. What is typed is handed in with Enter, when the focus leaves, at a pause, and
/// whenever the panel asks for it; Esc takes it back.
class FieldEditor : public QWidget
{
    Q_OBJECT

public:
    FieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                QWidget *parent);

    const QString &key() const { return m_field.key; }
    /// Shows the model's value, unless what is typed here waits to be handed in.
    void refresh();
    /// The same, whatever waits.
    void reload();
    void commit();
    void revert();

Q_SIGNALS:
    /// An object that the field names is to be selected.
    void openRequested(const vl::core::ContentId &id);

protected:
    /// Brings the model's value into the control.
    virtual void showValue() = 0;
    /// What stands in the control.
    virtual QVariant typed() const = 0;
    /// Whether a pause of typing hands in; not where half a text already means something else.
    virtual bool takesPauses() const { return true; }
    virtual void focusArrived() {}

    /// Puts the control under the label and follows its keys and its focus.
    void setControl(QWidget *control, QWidget *focused = nullptr);
    /// The list takes the focus while it has entries and shows, else the button that begins it.
    void takeFocusBy(bool hasEntries, QWidget *list, QWidget *begin);
    QVBoxLayout *column() const { return m_column; }
    /// To be called for every edit by the user.
    void touch();
    bool isTyping() const { return m_isTyping; }
    bool isMixed() const;
    /// What an empty control says: that the values differ, or the help text.
    QString emptyText() const;
    const app::InspectorField &field() const { return m_field; }
    const FieldEditorContext &context() const { return m_context; }
    app::InspectorModel &model() const { return m_context.model; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void updateProblem();
    bool keyPressed(int key, bool isLine);

    app::InspectorField m_field;
    FieldEditorContext m_context;
    QVBoxLayout *m_column;
    QLabel *m_label;
    QLabel *m_problem;
    QTimer m_pause;
    bool m_isTyping = false;  ///< something typed is not handed in yet
    bool m_isShowing = false; ///< the control takes over the model's value
    bool m_isHandingIn = false;
};

/// The editor for a field, by how it is edited.
FieldEditor *makeFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                             QWidget *parent);

/// A label in the quieter colour of secondary text, in plain text that wraps.
QLabel *quietLabel(const QString &text, QWidget *parent);

} // namespace vl::desktop
