#pragma once

#include <QtWidgets/QScrollArea>

class QLabel;
class QPushButton;

namespace vl::desktop {

/// What a panel shows while it has nothing to show: what it is for, in one sentence, and the first
/// useful step as a button. Where there is too little room it scrolls.
class EmptyState final : public QScrollArea
{
    Q_OBJECT

public:
    /// Without a text for the button there is no button.
    explicit EmptyState(const QString &sentence, const QString &buttonText = {},
                        QWidget *parent = nullptr);

    /// As wide as the button and the longest word.
    QSize minimumSizeHint() const override;

    void setSentence(const QString &sentence);
    void setButtonText(const QString &text);
    QPushButton *button() const { return m_button; }

Q_SIGNALS:
    /// The button was pressed.
    void activated();

private:
    QLabel *m_sentence;
    QPushButton *m_button;
};

} // namespace vl::desktop
