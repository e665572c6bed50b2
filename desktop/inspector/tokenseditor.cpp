#include "desktop/inspector/tokenseditor.h"

#include "app/models/inspectormodel.h"
#include "app/models/objecttexts.h"
#include "desktop/shell/icons.h"
#include "desktop/widgets/flowlayout.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QStringListModel>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

namespace {

constexpr int lineSteps = 18;
constexpr int mostChips = 200;

} // namespace

/// One text of the list; a press takes it away.
class TokensFieldEditor::Chip final : public QToolButton
{
public:
    explicit Chip(QWidget *parent)
        : QToolButton(parent)
    {
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setLayoutDirection(Qt::RightToLeft); // the cross stands behind the text
        setIcon(desktop::icon(QStringLiteral("close")));
        const int size = qRound(fontMetrics().height() * 0.8);
        setIconSize(QSize(size, size));
    }
    void show(const QString &token)
    {
        const QString shown = app::rowText(token);
        setText(QStringLiteral("\u00a0%1\u00a0")
                    .arg(fontMetrics()
                             .elidedText(shown, Qt::ElideMiddle, grid(lineSteps * 3))
                             .replace(u'&', QLatin1String("&&"))));
        setAccessibleName(TokensFieldEditor::tr("Remove “%1”").arg(shown));
        setToolTip(app::plainToolTip(TokensFieldEditor::tr("%1: press to remove.").arg(shown)));
        setVisible(true);
    }
};

TokensFieldEditor::TokensFieldEditor(const app::InspectorField &field,
                                     const FieldEditorContext &context, QWidget *parent)
    : FieldEditor(field, context, parent)
    , m_line(new QLineEdit(this))
{
    auto *box = new QWidget(this);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    box->setSizePolicy(policy);
    m_flow = new FlowLayout(box);
    m_flow->setContentsMargins(0, 0, 0, 0);
    m_flow->setSpacing(grid(1));
    m_flow->addWidget(m_line);
    m_line->setMinimumWidth(grid(lineSteps));
    m_line->setAccessibleName(tr("Add to “%1”").arg(field.label));
    connect(m_line, &QLineEdit::textEdited, this, [this](const QString &text) {
        touch();
        if (text.endsWith(u','))
            add();
    });
    setControl(box, m_line);
}

void TokensFieldEditor::focusArrived()
{
    const QStringList suggestions = model().suggestions(key());
    auto *completer = m_line->completer();
    if (!completer) {
        completer = new QCompleter(this);
        completer->setModel(new QStringListModel(completer));
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        completer->popup()->setAccessibleName(tr("Suggestions"));
        m_line->setCompleter(completer);
        connect(completer, qOverload<const QString &>(&QCompleter::activated), this,
                &TokensFieldEditor::add, Qt::QueuedConnection); // the line has the text by then
    }
    static_cast<QStringListModel *>(completer->model())->setStringList(suggestions);
}

void TokensFieldEditor::showValue()
{
    m_tokens = model().value(key()).toStringList();
    m_line->clear();
    m_line->setPlaceholderText(isMixed() ? tr("(mixed)") : tr("Add…"));
    showChips();
}

void TokensFieldEditor::showChips()
{
    const int count = int(qMin<qsizetype>(m_tokens.size(), mostChips));
    while (m_chips.size() < count) {
        auto *chip = new Chip(m_line->parentWidget());
        const int place = int(m_chips.size());
        connect(chip, &QToolButton::clicked, this, [this, place] { take(place); });
        m_chips.append(chip);
        m_flow->insertBeforeLast(chip);
    }
    for (int place = 0; place < m_chips.size(); ++place) {
        if (place < count)
            m_chips[place]->show(m_tokens[place]);
        else
            m_chips[place]->hide();
    }
    m_flow->invalidate();
    updateGeometry();
}

QVariant TokensFieldEditor::typed() const
{
    QStringList tokens = m_tokens;
    QString text = m_line->text();
    if (text.endsWith(u','))
        text.chop(1);
    text = text.simplified();
    if (!text.isEmpty() && !tokens.contains(text))
        tokens.append(text);
    return tokens;
}

void TokensFieldEditor::add()
{
    if (m_line->text().simplified().isEmpty())
        return;
    touch();
    commit();
    reload();
}

void TokensFieldEditor::take(int place)
{
    if (place < 0 || place >= m_tokens.size())
        return;
    m_tokens.removeAt(place);
    touch();
    commit();
    reload();
    m_line->setFocus(Qt::OtherFocusReason);
}

bool TokensFieldEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched == m_line) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        const bool isChoosing = m_line->completer() && m_line->completer()->popup()->isVisible()
                                && m_line->completer()->popup()->currentIndex().isValid();
        if (isEnter && !isChoosing) {
            add();
            return true;
        }
        if (key->key() == Qt::Key_Backspace && m_line->text().isEmpty() && !m_tokens.isEmpty()) {
            take(int(m_tokens.size()) - 1);
            return true;
        }
    }
    const bool left = event->type() == QEvent::FocusOut;
    const bool result = FieldEditor::eventFilter(watched, event);
    if (left && !isTyping())
        reload();
    return result;
}

} // namespace vl::desktop
