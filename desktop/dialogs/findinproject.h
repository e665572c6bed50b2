#pragma once

#include "app/models/projectsearchmodel.h"
#include "desktop/panels/panelcontext.h"

#include <QtCore/QTimer>
#include <QtWidgets/QDialog>

#include <functional>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListView;
class QProgressBar;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace vl::desktop {

/// Finds a text in everything that the project holds, beside the window, and replaces what is
/// ticked of it in one step.
class FindInProject final : public QDialog
{
    Q_OBJECT

public:
    /// Shows a panel of this object name and gives it the focus.
    using ShowPanel = std::function<void(const QString &)>;

    FindInProject(const PanelContext &context, ShowPanel showPanel, QWidget *window);

    /// Opens the one of a window, made when it is first asked for, with what is selected in the
    /// text that has the focus.
    static void open(const PanelContext &context, const ShowPanel &showPanel, QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildFields(QGridLayout *form);
    QToolButton *makeOption(const QString &icon, const QString &text, const QString &keys);
    QToolButton *makeScopes();
    void buildResults(QLayout *layout);
    void buildFoot(QLayout *layout);
    app::SearchScopes scopes() const;
    void updateScopes();
    void search();
    void searchAgain();
    void updateReplacement();
    void updateState();
    void updateButton();
    void openRow(const QModelIndex &index);
    void replace();
    void begin(const QString &text);

    PanelContext m_context;
    ShowPanel m_showPanel;
    app::ProjectSearchModel m_model;
    QLineEdit *m_pattern;
    QToolButton *m_case = nullptr;
    QToolButton *m_words = nullptr;
    QToolButton *m_expression = nullptr;
    QCheckBox *m_replaces;
    QLineEdit *m_replacement;
    QToolButton *m_keepCase = nullptr;
    QToolButton *m_scopeButton = nullptr;
    QList<QAction *> m_scopes; ///< one a scope, in the order of their bits
    QProgressBar *m_progress;
    QPushButton *m_stop;
    QListView *m_list;
    QLabel *m_hint;
    QStackedWidget *m_pages;
    QLabel *m_state;
    QPushButton *m_replaceButton;
    QTimer m_typing;   ///< until the user stops typing
    QTimer m_settling; ///< until the project stops changing
    QTimer m_patience; ///< until a search that goes on shows how far it is
    int m_row = -1;    ///< to come back to when the same is searched again
    int m_scroll = 0;
};

} // namespace vl::desktop
