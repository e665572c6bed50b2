#pragma once

#include <QtWidgets/QLayout>

namespace vl::desktop {

/// Lays its items side by side like words of a text; the last one takes what is left of its line if
/// it can grow.
class FlowLayout final : public QLayout
{
    Q_OBJECT

public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    /// Puts the widget before the last item.
    void insertBeforeLast(QWidget *widget);

    void addItem(QLayoutItem *item) override;
    int count() const override;
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    /// Places the items in the width, or only measures; gives the height.
    int place(const QRect &rect, bool isTrial) const;

    QList<QLayoutItem *> m_items;
};

} // namespace vl::desktop
