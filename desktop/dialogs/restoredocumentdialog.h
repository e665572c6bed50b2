#pragma once

#include "app/models/backupoperations.h"

#include <QtWidgets/QDialog>

class QPushButton;
class QTreeWidget;

namespace vl::desktop {

class DifferenceView;

/// Chooses a document of a backup, with what restoring it would change.
class RestoreDocumentDialog final : public QDialog
{
    Q_OBJECT

public:
    RestoreDocumentDialog(QList<app::BackupDocument> documents, QWidget *parent);

    /// The chosen document; null when none is.
    core::ContentId chosen() const;

private:
    void fill();
    void showChosen();

    QList<app::BackupDocument> m_documents;
    QTreeWidget *m_tree;
    DifferenceView *m_difference;
    QPushButton *m_restore;
};

} // namespace vl::desktop
