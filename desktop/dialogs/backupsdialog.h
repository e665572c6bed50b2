#pragma once

#include "app/models/backupsmodel.h"

#include <QtWidgets/QDialog>

class QLabel;
class QPushButton;
class QTableView;

namespace vl::desktop {

/// The backups of a project: when, what stands in them, where they are.
class BackupsDialog final : public QDialog
{
    Q_OBJECT

public:
    BackupsDialog(const app::AutoBackups &backups, QWidget *parent);

    /// Shows what was made meanwhile.
    void refresh();

Q_SIGNALS:
    void backUpRequested();
    void openCopyRequested(const QString &backupPath);
    void restoreDocumentRequested(const QString &backupPath);

private:
    void build(const QString &folder);
    void updateButtons();
    QString chosen() const;

    app::BackupsModel m_model;
    QTableView *m_table;
    QLabel *m_empty;
    QPushButton *m_openCopy;
    QPushButton *m_restore;
};

} // namespace vl::desktop
