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
    /// The wanted document is at hand first when restoring it would change something.
    RestoreDocumentDialog(QList<app::BackupDocument> documents, const core::ContentId &wanted,
                          QWidget *parent);

    /// The chosen document; null when none is.
    core::ContentId chosen() const;

private:
    void fill(const core::ContentId &wanted);
    void showChosen();

    QList<app::BackupDocument> m_documents;
    QTreeWidget *m_tree;
    DifferenceView *m_difference;
    QPushButton *m_restore;
};

} // namespace vl::desktop
