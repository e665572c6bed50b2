#pragma once

#include "core/id.h"
#include "desktop/panels/panelcontext.h"

#include <QtWidgets/QWidget>

#include <memory>
#include <vector>

class QScrollArea;
class QStackedWidget;
class QVBoxLayout;

namespace vl::app {
class InspectorModel;
class ReferencesModel;
struct InspectorField;
} // namespace vl::app

namespace vl::desktop {

class ElidedLabel;
class FieldEditor;

/// What is known of whatever is selected, as a form that can be changed.
class InspectorPanel final : public QWidget
{
    Q_OBJECT

public:
    InspectorPanel(const PanelContext &context, QWidget *parent);
    ~InspectorPanel() override;

    /// Hands in what is typed and not yet a step of the history.
    void handIn();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    /// The editors of one form; forms that were shown lately are kept, as they are needed again.
    struct Form
    {
        QList<app::InspectorField> fields;
        QWidget *page = nullptr;
        std::vector<FieldEditor *> editors;
    };

    void selectSomething();
    void showForm();
    void showField(const QString &key);
    Form &formFor(const QList<app::InspectorField> &fields);
    void build(Form &form);

    PanelContext m_context;
    app::InspectorModel *m_model;
    app::ReferencesModel *m_references;
    QStackedWidget *m_pages;
    ElidedLabel *m_heading;
    QScrollArea *m_scroll;
    std::vector<std::unique_ptr<Form>> m_forms; ///< the one shown last at the end
};

} // namespace vl::desktop
