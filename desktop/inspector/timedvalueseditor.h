#pragma once

#include "desktop/inspector/fieldeditor.h"

class QToolButton;
class QTreeView;

namespace vl::app {
class TimedValuesModel;
}

namespace vl::desktop {

/// The values of an entity that change over story time, as a small table.
class TimedValuesEditor final : public FieldEditor
{
    Q_OBJECT

public:
    TimedValuesEditor(const app::InspectorField &field, const FieldEditorContext &context,
                      QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override { return {}; }

private:
    void addRow();
    void removeSelected();
    void update();

    app::TimedValuesModel *m_rows;
    QTreeView *m_table;
    QToolButton *m_add;
    QToolButton *m_remove;
    QLabel *m_hint;
};

} // namespace vl::desktop
