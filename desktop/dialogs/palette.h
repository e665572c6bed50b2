#pragma once

#include "app/models/quickopenmodel.h"

#include <QtCore/QPointer>
#include <QtWidgets/QFrame>

#include <functional>

class QLabel;
class QLineEdit;
class QListView;
class QStackedWidget;

namespace vl::desktop {

/// The command palette: a field laid over the window that finds documents, entities and commands
/// as the user types. Enter opens, Ctrl+Enter shows the document or entity and goes on, the arrows
/// choose, Esc leaves everything as it is. It goes when the focus goes elsewhere.
class Palette final : public QFrame
{
    Q_OBJECT

public:
    /// What is done with what was chosen; the palette is gone from sight by then.
    using Handler = std::function<void(const app::QuickOpenModel::Choice &)>;

    /// The model outlives the palette.
    Palette(app::QuickOpenModel &model, Handler handler, QWidget *window);

    /// Shows what the model lists for an empty field.
    void start();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeHint();
    void search(const QString &query);
    void choose(int row, bool goesOn = false);
    void moveTo(int row);
    bool handleKey(const QKeyEvent &event);
    void leave();
    void placeOverWindow();

    app::QuickOpenModel &m_model;
    Handler m_handler;
    QLineEdit *m_field;
    QListView *m_list;
    QLabel *m_empty;
    QStackedWidget *m_pages;
    QLabel *m_count;
    QPointer<QWidget> m_before; ///< had the focus before
};

} // namespace vl::desktop
