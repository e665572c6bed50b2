#pragma once

#include "app/models/externalchangesmodel.h"

#include <QtWidgets/QDialog>

class QBoxLayout;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;
class QTreeView;

namespace vl::desktop {

class DifferenceView;

/// Lets the user decide, file by file, what becomes of changes that others made on disk.
class ExternalChangesDialog final : public QDialog
{
    Q_OBJECT

public:
    /// As for the model.
    ExternalChangesDialog(const app::OutsideState &state, std::vector<app::ReconcileEntry> entries,
                          const app::Workspace *workspace, QWidget *parent);

    /// The entries as they were decided.
    std::vector<app::ReconcileEntry> resolution() const { return m_model.resolution(); }

    /// Leaves the text that is being edited first, which stays as it is.
    void reject() override;

private:
    void buildFiles();
    QWidget *buildDifferences();
    QWidget *buildEditor();
    void buildButtons(QBoxLayout *layout);
    int row() const;
    void showFile();
    void chooseMine();
    void chooseTheirs();
    void edit();
    void useText();
    void updateState();
    void goOn();

    app::ExternalChangesModel m_model;
    QTreeView *m_files;
    QStackedWidget *m_pages;
    DifferenceView *m_differences;
    QPlainTextEdit *m_text;
    QLabel *m_textFault;
    QLabel *m_undecided;
    QPushButton *m_mine;
    QPushButton *m_theirs;
    QPushButton *m_edit;
    QPushButton *m_apply;
    int m_editedRow = -1; ///< of the file whose text is being edited
};

} // namespace vl::desktop
