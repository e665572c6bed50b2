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

private:
    void addPages(const PreferencesContext &context);
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
