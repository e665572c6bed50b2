#pragma once

#include <QtWidgets/QLabel>

namespace vl::desktop {

/// One line of plain text that is cut in the middle where there is no room for it; the tool tip has
/// the whole.
class ElidedLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const QString &text = {}, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};

} // namespace vl::desktop
