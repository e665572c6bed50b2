#pragma once

#include "app/models/textsearch.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QThreadPool>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <memory>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace vl::desktop {

class EditorSession;
class EditorTextWidget;
class ElidedLabel;

/// Finds and replaces in the open document, from a strip above the text. It looks for the words
/// while they are typed, on another thread, and tints every hit.
class FindStrip final : public QWidget
{
    Q_OBJECT

public:
    FindStrip(const PanelContext &context, EditorSession *session, EditorTextWidget *text,
              QWidget *parent);
    ~FindStrip() override;

    /// Opens with the selected words to look for.
    void showFind();
    void showReplace();
    void findNext() { step(true); }
    void findPrevious() { step(false); }
    /// Closes and goes back to the text.
    void leave();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    enum class AfterSearch
    {
        Stay,
        GoToFirst, ///< from where the search began
        GoToNext,
        GoToPrevious,
        ReplaceAll
    };

    QLayout *makeFindRow();
    QWidget *makeReplaceRow();
    QToolButton *makeToggle(const char *iconName, const QString &toolTip, const QString &keys);
    void takeSelection();
    void restrictToSelection(bool isOn);
    app::SearchTerms terms() const;
    void search(AfterSearch next);
    void take(quint64 number, const app::SearchResult &result);
    void noteEdit(int position, int removed, int added);
    void followDocument();
    void step(bool forward);
    void goTo(qsizetype number);
    void replaceOne();
    void replaceAll();
    void updateCount();
    void fitWidth();
    bool isSearching() const { return m_cancel != nullptr; }
    void cancelSearch();

    app::Workspace &m_workspace;
    EditorSession *m_session;
    EditorTextWidget *m_text;
    QLineEdit *m_pattern = nullptr;
    QLineEdit *m_replacement = nullptr;
    QToolButton *m_case = nullptr;
    QToolButton *m_words = nullptr;
    QToolButton *m_expression = nullptr;
    QToolButton *m_inSelection = nullptr;
    QToolButton *m_keepsCase = nullptr;
    QBoxLayout *m_findBox = nullptr;
    QBoxLayout *m_replaceBox = nullptr;
    ElidedLabel *m_count = nullptr;
    QLabel *m_problem = nullptr; ///< what is wrong with the expression
    QWidget *m_replaceRow = nullptr;
    QPushButton *m_replaceAll = nullptr;
    QMetaObject::Connection m_edits;

    std::vector<app::SearchHit> m_hits; ///< in places of the shown text
    app::SearchResult m_told;           ///< the last result but for its hits
    qsizetype m_origin = 0;             ///< where the search began
    bool m_showsHit = false;            ///< what is selected was selected by the search
    qsizetype m_from = 0;               ///< the part to look in
    qsizetype m_to = -1;
    AfterSearch m_next = AfterSearch::Stay;
    quint64 m_number = 0; ///< of the search that runs
    std::shared_ptr<std::atomic_bool> m_cancel;
    QTimer m_problemPause;
    QTimer m_again; ///< searches anew after the text was edited
    QThreadPool m_threads;
};

} // namespace vl::desktop
