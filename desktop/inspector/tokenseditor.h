#pragma once

#include "desktop/inspector/fieldeditor.h"

#include <QtCore/QStringList>

class QLineEdit;

namespace vl::desktop {

class FlowLayout;

/// A list of short texts as chips, with a line to add one: Enter or a comma adds what is typed,
/// Backspace in the empty line takes the last one back, a press on a chip takes that one away.
class TokensFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    TokensFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                      QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;
    bool takesPauses() const override { return false; }
    void focusArrived() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Chip;

    void add();
    void take(int place);
    void showChips();

    FlowLayout *m_flow;
    QLineEdit *m_line;
    QList<Chip *> m_chips; ///< as many as were ever needed; the rest are hidden
    QStringList m_tokens;
};

} // namespace vl::desktop
