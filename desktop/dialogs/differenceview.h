#pragma once

#include <QtWidgets/QPlainTextEdit>

namespace vl::desktop {

/// Shows what became of a text: lines that went are marked "−", lines that came "+", each on a
/// ground of its own; within a changed line the words that differ are underlined on a stronger one.
/// Same lines far from a difference are left out.
class DifferenceView final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit DifferenceView(QWidget *parent = nullptr);

    /// Compares the texts and shows the result.
    void show(const QString &before, const QString &after);
    /// Shows one text that has nothing to be compared with.
    void showPlain(const QString &text);

    using QWidget::show;
};

} // namespace vl::desktop
