#pragma once

#include "desktop/inspector/fieldeditor.h"

class QListWidget;
class QToolButton;

namespace vl::desktop {

/// The fields that a category defines: added, changed, moved and removed here.
class FieldListEditor final : public FieldEditor
{
    Q_OBJECT

public:
    FieldListEditor(const app::InspectorField &field, const FieldEditorContext &context,
                    QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override { return {}; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *addButton(QLayout *bar, const QString &iconName, const QString &text,
                           void (FieldListEditor::*slot)());
    void add();
    void change();
    void moveUp() { move(-1); }
    void moveDown() { move(1); }
    void move(int step);
    void removeField();
    void update();

    QListWidget *m_list;
    QLabel *m_hint;
    QToolButton *m_add = nullptr;
    QToolButton *m_change = nullptr;
    QToolButton *m_up = nullptr;
    QToolButton *m_down = nullptr;
    QToolButton *m_remove = nullptr;
};

} // namespace vl::desktop
