#pragma once

#include "desktop/preferences/preferencespage.h"

class QKeySequenceEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace vl::desktop {

/// The keys of all actions: found by name or keys, recorded anew, reset one by one or all.
class ShortcutsPage final : public PreferencesPage
{
    Q_OBJECT

public:
    ShortcutsPage(const PreferencesContext &context, QWidget *parent);

    void reset() override;
    QStringList searchTexts() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildTree();
    void buildEditor();
    void showKeys();
    void filter(const QString &text);
    void showCurrent();
    void record();
    void take(const QKeySequence &keys);
    /// The id of the selected action, empty when none is.
    QByteArray current() const;

    QLineEdit *m_filter;
    QTreeWidget *m_tree;
    QLabel *m_label;
    QKeySequenceEdit *m_keys;
    QPushButton *m_none;
    QPushButton *m_reset;
    QLabel *m_conflict;
    QPushButton *m_take;
    QList<QTreeWidgetItem *> m_items; ///< one an action, in the order of the catalogue
};

} // namespace vl::desktop
