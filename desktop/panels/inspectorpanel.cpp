#include "desktop/panels/inspectorpanel.h"

#include "app/models/inspectormodel.h"
#include "app/models/referencesmodel.h"
#include "app/models/workspace.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/inspector/fieldeditor.h"
#include "desktop/widgets/elidedlabel.h"
#include "desktop/widgets/emptystate.h"
#include "desktop/widgets/grid.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace vl::desktop {

namespace {

constexpr std::size_t keptForms = 8;

} // namespace

InspectorPanel::InspectorPanel(const PanelContext &context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
    , m_model(new app::InspectorModel(context.workspace, this))
    , m_references(new app::ReferencesModel(context.workspace, this))
    , m_pages(new QStackedWidget(this))
    , m_heading(new ElidedLabel({}, this))
    , m_scroll(new QScrollArea(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages);
    auto *empty =
        new EmptyState(tr("Select a document or an entity to see and change what is known of it."),
                       tr("Show a Document"), this);
    connect(empty, &EmptyState::activated, this, &InspectorPanel::selectSomething);
    m_pages->addWidget(empty);
    auto *whole = new QWidget(this);
    auto *column = new QVBoxLayout(whole);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    QFont bold = m_heading->font();
    bold.setBold(true);
    m_heading->setFont(bold);
    m_heading->setAccessibleName(tr("What is selected"));
    auto *headingRow = new QHBoxLayout;
    headingRow->setContentsMargins(grid(3), grid(2), grid(3), grid(2));
    headingRow->addWidget(m_heading);
    column->addLayout(headingRow);
    m_scroll->setWidgetResizable(true);
    m_scroll->viewport()->setAutoFillBackground(false);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setAccessibleName(tr("Inspector"));
    m_scroll->setFocusPolicy(Qt::NoFocus);
    // All forms lie in it, one of them shown: to move a form to and fro costs more than to show it.
    auto *forms = new QWidget;
    auto *formColumn = new QVBoxLayout(forms);
    formColumn->setContentsMargins(0, 0, 0, 0);
    m_scroll->setWidget(forms);
    forms->setAutoFillBackground(false); // the ground is that of the panel
    column->addWidget(m_scroll, 1);
    m_pages->addWidget(whole);
    setFocusPolicy(Qt::StrongFocus);

    connect(m_model, &app::InspectorModel::aboutToSwitch, this, &InspectorPanel::handIn);
    connect(m_model, &app::InspectorModel::formChanged, this, &InspectorPanel::showForm);
    connect(m_model, &app::InspectorModel::fieldChanged, this, &InspectorPanel::showField);
    connect(&m_context.workspace, &app::Workspace::flushRequested, this, &InspectorPanel::handIn);
    showForm();
}

InspectorPanel::~InspectorPanel() = default;

void InspectorPanel::selectSomething()
{
    const auto places = m_context.workspace.project().documentTree().inOrder();
    if (places.empty())
        m_context.actions["doc.add"]->trigger();
    else
        m_context.workspace.select(places.front().document->id());
}

void InspectorPanel::handIn()
{
    if (m_forms.empty())
        return;
    // A step may change the form, and so the list of its editors.
    const std::vector<FieldEditor *> editors = m_forms.back()->editors;
    for (FieldEditor *editor : editors)
        editor->commit();
}

void InspectorPanel::showForm()
{
    const QList<app::InspectorField> fields = m_model->fields();
    m_heading->setText(m_model->heading());
    if (fields.isEmpty()) {
        m_pages->setCurrentIndex(0);
        return;
    }
    QWidget *before = m_forms.empty() ? nullptr : m_forms.back()->page;
    Form &form = formFor(fields);
    for (FieldEditor *editor : form.editors)
        editor->reload();
    if (before != form.page) {
        if (before)
            before->hide();
        form.page->show();
    }
    m_pages->setCurrentIndex(1);
}

void InspectorPanel::showField(const QString &key)
{
    if (m_forms.empty())
        return;
    for (FieldEditor *editor : m_forms.back()->editors)
        if (editor->key() == key)
            editor->refresh();
}

InspectorPanel::Form &InspectorPanel::formFor(const QList<app::InspectorField> &fields)
{
    const auto known = std::find_if(m_forms.begin(), m_forms.end(),
                                    [&](const auto &form) { return form->fields == fields; });
    if (known != m_forms.end()) {
        std::rotate(known, known + 1, m_forms.end());
        return *m_forms.back();
    }
    if (m_forms.size() >= keptForms) {
        // One of its editors may be the one that asks for another form.
        m_forms.front()->page->hide();
        m_forms.front()->page->deleteLater();
        m_forms.erase(m_forms.begin());
    }
    m_forms.push_back(std::make_unique<Form>());
    m_forms.back()->fields = fields;
    build(*m_forms.back());
    return *m_forms.back();
}

void InspectorPanel::build(Form &form)
{
    form.page = new QWidget(m_scroll->widget());
    form.page->hide();
    m_scroll->widget()->layout()->addWidget(form.page);
    auto *column = new QVBoxLayout(form.page);
    column->setContentsMargins(grid(3), grid(1), grid(3), grid(4));
    column->setSpacing(grid(2));
    QString group;
    const FieldEditorContext context{m_context, *m_model, *m_references};
    for (const app::InspectorField &field : std::as_const(form.fields)) {
        if (field.group != group) {
            group = field.group;
            column->addSpacing(grid(2));
        }
        FieldEditor *editor = makeFieldEditor(field, context, form.page);
        connect(editor, &FieldEditor::openRequested, this, [this](const core::ContentId &id) {
            if (!id.isNull())
                m_context.workspace.select(id);
        });
        column->addWidget(editor);
        form.editors.push_back(editor);
    }
    column->addStretch(1);
}

void InspectorPanel::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    if (m_pages->currentIndex() == 1 && !m_forms.empty() && !m_forms.back()->editors.empty())
        m_forms.back()->editors.front()->setFocus(event->reason());
}

} // namespace vl::desktop
