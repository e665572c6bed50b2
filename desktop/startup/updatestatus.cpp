#include "desktop/startup/updatestatus.h"

#include "desktop/shell/icons.h"
#include "desktop/startup/updatecheck.h"
#include "desktop/widgets/grid.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace vl::desktop {

namespace {

constexpr int progressSteps = 30; // of the grid, wide
constexpr int permille = 1000;

} // namespace

UpdateStatus::UpdateStatus(UpdateCheck &check, QWidget *parent)
    : QWidget(parent)
    , m_install(new QPushButton(icon(QStringLiteral("update")), {}, this))
    , m_text(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancel(new QToolButton(this))
{
    // At the right end, however much room the rest of the line leaves.
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_install->setFlat(true);
    m_text->setTextFormat(Qt::PlainText);
    m_progress->setAccessibleName(tr("Progress of the download"));
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(grid(progressSteps));
    m_progress->setMaximumHeight(fontMetrics().height());
    m_cancel->setIcon(icon(QStringLiteral("close")));
    m_cancel->setAutoRaise(true);
    m_cancel->setToolTip(tr("Cancel the download"));
    m_cancel->setAccessibleName(tr("Cancel the download"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(grid(2));
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_install, m_text, m_progress, m_cancel})
        layout->addWidget(widget);
    hide();

    connect(m_install, &QPushButton::clicked, &check, &UpdateCheck::install);
    connect(m_cancel, &QToolButton::clicked, &check, &UpdateCheck::cancel);
    connect(&check, &UpdateCheck::nothingToShow, this, &QWidget::hide);
    connect(&check, &UpdateCheck::checking, this,
            [this] { showProgress(tr("Checking for updates…"), false); });
    connect(&check, &UpdateCheck::downloading, this, [this](const QString &version) {
        showProgress(tr("Downloading Ivorel %1…").arg(version), true);
    });
    connect(&check, &UpdateCheck::available, this, [this](const QString &version) {
        showProgress({}, false);
        m_install->setText(tr("Update available: %1 — Install…").arg(version));
        m_install->show();
        m_progress->hide();
    });
    connect(&check, &UpdateCheck::progressed, this, [this](qint64 received, qint64 total) {
        m_progress->setRange(0, total > 0 ? permille : 0);
        m_progress->setValue(total > 0 ? int(received * permille / total) : 0);
    });
}

void UpdateStatus::showProgress(const QString &text, bool canBeCancelled)
{
    m_install->hide();
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());
    m_progress->setRange(0, 0);
    m_progress->show();
    m_cancel->setVisible(canBeCancelled);
    show();
}

} // namespace vl::desktop
