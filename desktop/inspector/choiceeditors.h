#pragma once

#include "desktop/inspector/fieldeditor.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QSlider;
class QSpinBox;

namespace vl::desktop {

/// One of a few values, or yes, no and neither.
class ChoiceFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    ChoiceFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                      QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;

private:
    QComboBox *m_box;
};

/// A text with suggestions: values in use, and others that make sense.
class OpenChoiceFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    OpenChoiceFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                          QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillSuggestions();

    QComboBox *m_box;
};

class CheckFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    CheckFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                     QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QCheckBox *m_box;
    QLabel *m_text;
};

/// A step between 0 and 10, 0 standing for none.
class LevelFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    LevelFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                     QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;

private:
    void updateText();

    QSlider *m_slider;
    QLabel *m_text;
};

/// Words to reach, and how far the document has come.
class TargetFieldEditor final : public FieldEditor
{
    Q_OBJECT

public:
    TargetFieldEditor(const app::InspectorField &field, const FieldEditorContext &context,
                      QWidget *parent);

protected:
    void showValue() override;
    QVariant typed() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QSpinBox *m_words;
    QProgressBar *m_progress;
};

} // namespace vl::desktop
