#include "desktop/widgets/emptystate.h"

#include "desktop/widgets/grid.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace vl::desktop {

EmptyState::EmptyState(const QString &sentence, const QString &buttonText, QWidget *parent)
    : QScrollArea(parent)
    , m_sentence(new QLabel)
    , m_button(new QPushButton)
{
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(grid(2), grid(4), grid(2), grid(4));
    layout->setSpacing(grid(4));
    m_sentence->setTextFormat(Qt::PlainText);
    m_sentence->setWordWrap(true);
    m_sentence->setAlignment(Qt::AlignCenter);
    layout->addStretch(2);
    layout->addWidget(m_sentence);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch(3);
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setSentence(sentence);
    setButtonText(buttonText);
    setFocusProxy(m_button);
    connect(m_button, &QPushButton::clicked, this, &EmptyState::activated);
}

QSize EmptyState::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width(), QScrollArea::minimumSizeHint().height()};
}

void EmptyState::setSentence(const QString &sentence)
{
    m_sentence->setText(sentence);
    m_button->setAccessibleDescription(sentence);
}

void EmptyState::setButtonText(const QString &text)
{
    m_button->setText(text);
    m_button->setVisible(!text.isEmpty());
}

} // namespace vl::desktop
