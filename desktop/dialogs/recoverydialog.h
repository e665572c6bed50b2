#pragma once

#include "app/models/recovery.h"

#include <QtWidgets/QDialog>

class QLabel;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

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

    /// When it is asked: after a crash, or once it was decided about.
    enum class Occasion
    {
        AfterCrash,
        Decided
    };

    RecoveryDialog(app::Recovery recovery, Occasion occasion, QWidget *parent);

    Answer answer() const { return m_answer; }
    /// Paths of what is ticked.
    QStringList chosenPaths() const;

private:
    void addButtons(QVBoxLayout *layout, Occasion occasion);
    void fill();
    void showChosen();
    void updateButtons();

    app::Recovery m_recovery;
    Answer m_answer = Answer::Later;
    QTreeWidget *m_tree;
    QLabel *m_way; ///< how what is chosen comes back
    DifferenceView *m_difference;
    QPushButton *m_restore;
};

} // namespace vl::desktop
