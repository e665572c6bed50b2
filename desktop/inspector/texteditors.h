#pragma once

#include "desktop/inspector/fieldeditor.h"

class QCompleter;
class QLineEdit;
class QPlainTextEdit;
class QToolButton;

namespace vl::desktop {

/// A text on one line.
class LineFieldEditor : public FieldEditor
{
    Q_OBJECT

public:
    LineFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                    QWidget *parent);

protected:
    /// The line alone, for editors that put something beside it.
    LineFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                    QWidget *parent, QToolButton *beside);

    void showValue() override;
    QVariant typed() const override;
    bool takesPauses() const override;
    QLineEdit *line() const { return m_line; }

private:
    QLineEdit *m_line;
};

/// A web address, with a button that opens it.
class UrlFieldEditor final : public LineFieldEditor
{
    Q_OBJECT

public:
    UrlFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                   QWidget *parent);

protected:
    void showValue() override;

private:
    UrlFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                   QWidget *parent, QToolButton *open);
    void updateButton();

    QToolButton *m_open;
};

/// The name of another object, found by typing a part of it, with a button that goes there.
class ReferenceFieldEditor final : public LineFieldEditor
{
    Q_OBJECT

public:
    ReferenceFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                         QWidget *parent);

protected:
    void showValue() override;
    void focusArrived() override;
    bool takesPauses() const override { return false; }

private:
    ReferenceFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                         QWidget *parent, QToolButton *open);

    QToolButton *m_open;
    QCompleter *m_completer = nullptr; ///< made when the line is first gone to
};

/// A text of any length, as high as it needs.
class TextFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    TextFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                    QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitHeight();

    QPlainTextEdit *m_text;
    QString m_shownValue; ///< the model's text that the widget holds
};

/// A text that is only shown.
class NoteFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    NoteFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                    QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override { return {}; }

private:
    QLabel *m_text;
};

} // namespace vl::desktop
