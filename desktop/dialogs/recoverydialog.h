#pragma once

#include "app/models/recovery.h"

#include <QtWidgets/QDialog>

class QPushButton;
class QTreeWidget;

namespace vl::desktop {

class DifferenceView;

/// Shows what was not saved when the program was cut off, beside what the project holds, and lets
/// the user choose what is to come back.
class RecoveryDialog final : public QDialog
{
    Q_OBJECT

public:
    enum class Answer
    {
        Later,
        Restore,
        Discard
    };

    RecoveryDialog(const app::Recovery &recovery, QWidget *parent);

    Answer answer() const { return m_answer; }
    /// Paths of what is ticked.
    QStringList chosenPaths() const;

private:
    void fill();
    void showChosen();
    void updateButtons();

    const app::Recovery &m_recovery;
    Answer m_answer = Answer::Later;
    QTreeWidget *m_tree;
    DifferenceView *m_difference;
    QPushButton *m_restore;
};

} // namespace vl::desktop
