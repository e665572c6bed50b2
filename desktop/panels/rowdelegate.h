#pragma once

#include <QtCore/QPointer>
#include <QtWidgets/QStyledItemDelegate>

namespace vl::desktop {

/// The rows of all lists and trees: of a comfortable height, secondary columns and dimmed rows in
/// a quieter colour. What a cell is edited with has the name of its column, or of the list.
class RowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Rows for which this role is true are shown quieter as a whole.
    void setDimmedRole(int role) { m_dimmedRole = role; }

    /// Hands in what was written in a cell so far, which stays open; Esc still takes it back.
    void commit();
    /// Whether a cell is being written in.
    bool isOpen() const { return m_editor; }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void destroyEditor(QWidget *editor, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;

protected:
    /// To be called for an editor that a subclass makes itself.
    QWidget *keep(QWidget *editor, const QWidget *view, const QModelIndex &index) const;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    bool eventFilter(QObject *editor, QEvent *event) override;

private:
    int m_dimmedRole = -1;
    mutable QPointer<QWidget> m_editor; ///< of the cell that is open
    mutable QVariant m_shown;           ///< what the cell held before it was written in
    mutable QVariant m_handedIn;        ///< and what of that is handed in
    bool m_isCommitting = false;
};

} // namespace vl::desktop
