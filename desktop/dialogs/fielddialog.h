#pragma once

#include "core/taxonomy.h"

#include <QtWidgets/QDialog>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace vl::desktop {

/// What a field of a category is: its label, type, options and description.
class FieldDialog final : public QDialog
{
    Q_OBJECT

public:
    /// `action` names the button that takes the field over.
    FieldDialog(const QString &title, const core::FieldDefinition &field, const QString &action,
                QWidget *parent);

    /// The field as it is told now; its key is that of the one handed in.
    core::FieldDefinition field() const;

    /// Ask for a new field of the category with this name, or for changes of one; nothing when it
    /// is called off.
    static std::optional<core::FieldDefinition> askNew(const QString &categoryName,
                                                       QWidget *parent);
    static std::optional<core::FieldDefinition> askChanged(const core::FieldDefinition &field,
                                                           QWidget *parent);

private:
    void update();

    core::FieldDefinition m_field;
    QLineEdit *m_label;
    QComboBox *m_type;
    QLabel *m_optionsLabel;
    QPlainTextEdit *m_options;
    QCheckBox *m_required;
    QLineEdit *m_description;
    QPushButton *m_go = nullptr;
};

/// The field type as it stands in lists.
QString fieldTypeText(core::FieldType type);

} // namespace vl::desktop
