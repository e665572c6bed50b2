#pragma once

#include "app/models/newproject.h"

#include <QtWidgets/QDialog>

#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace vl::desktop {

/// Asks what a new project is to be: its template, its name and its place.
class NewProjectDialog final : public QDialog
{
    Q_OBJECT

public:
    /// Makes the project, or tells why it cannot be made; then the dialog stays as it is.
    using Make = std::function<bool(const app::NewProject &)>;

    /// `place` is the folder that is suggested.
    NewProjectDialog(const QString &place, Make make, QWidget *parent);

    app::NewProject wanted() const;
    void accept() override;

private:
    void buildCards();
    QLayout *makeForm();
    void choosePlace();
    void update();

    Make m_make;
    QListWidget *m_cards;
    QLineEdit *m_name;
    QLineEdit *m_place;
    QRadioButton *m_file;
    QRadioButton *m_folder;
    QLabel *m_result; ///< where the project will stand, or what is wrong
    QPushButton *m_create = nullptr;
};

} // namespace vl::desktop
