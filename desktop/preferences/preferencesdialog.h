#pragma once

#include "desktop/preferences/preferencespage.h"

#include <QtWidgets/QDialog>

class QLabel;
class QLineEdit;
class QListWidget;
class QStackedWidget;

namespace vl::desktop {

/// All preferences, page by page, found by the words on them. What is changed holds at once.
class PreferencesDialog final : public QDialog
{
    Q_OBJECT

public:
    PreferencesDialog(const PreferencesContext &context, QWidget *parent);

    /// Opens the dialog over the window, or brings the open one to the front.
    static void open(const PreferencesContext &context, QWidget *window);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addPages(const PreferencesContext &context);
    /// Keeps the names of the pages whole and their title larger, whatever the font.
    void fitFont();
    void find(const QString &text);
    void showPage(int index);

    QLineEdit *m_search;
    QListWidget *m_list;
    QStackedWidget *m_stack;
    QLabel *m_title;
    QLabel *m_nothing;
    QList<PreferencesPage *> m_pages;
};

} // namespace vl::desktop
