#include "desktop/preferences/appearancepage.h"

#include "app/base/settingskeys.h"
#include "desktop/shell/theme.h"
#include "desktop/widgets/grid.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSignalBlocker>
#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSpinBox>

#include <cmath>

namespace vl::desktop {

namespace {

constexpr int leastPercent = 75;
constexpr int mostPercent = 200;

/// A small window in the colours of the theme.
QIcon previewOf(const Theme &theme, double pixelRatio)
{
    const QSize size(grid(16), grid(10));
    QPixmap picture(size * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const QRect frame(QPoint(), size);
    painter.fillRect(frame, QColor(theme.window));
    const QRect page = frame.adjusted(grid(5), grid(1), -grid(1), -grid(1));
    painter.fillRect(page, QColor(theme.base));
    const int line = qMax(1, grid(1) / 3);
    for (int i = 1; i <= 3; ++i)
        painter.fillRect(page.left() + grid(1), page.top() + i * grid(2) - line,
                         page.width() - grid(i == 3 ? 5 : 2), line, QColor(theme.text));
    painter.fillRect(frame.left() + grid(1), frame.top() + grid(2), grid(3), grid(1),
                     QColor(theme.highlight));
    painter.fillRect(frame.left() + grid(1), frame.top() + grid(4), grid(3), line,
                     QColor(theme.windowText));
    painter.setPen(mix(QColor(theme.windowText), QColor(theme.window), 0.5));
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
    return picture;
}

} // namespace

AppearancePage::AppearancePage(const PreferencesContext &context, QWidget *parent)
    : PreferencesPage(context, parent)
{
    addThemes();
    addScale();
}

void AppearancePage::addThemes()
{
    QFormLayout *group = addGroup(tr("Theme"));
    auto *buttons = new QButtonGroup(this);
    for (const Theme &theme : themes()) {
        const QString name = QLatin1String(theme.name);
        auto *button = new QRadioButton(QCoreApplication::translate("Themes", theme.name), this);
        button->setIcon(previewOf(theme, devicePixelRatioF()));
        button->setIconSize({grid(16), grid(10)});
        buttons->addButton(button);
        group->addRow(button);
        connect(button, &QRadioButton::clicked, this,
                [this, name] { settings().set(app::settings::theme, name); });
    }
    follow(app::settings::theme, buttons, [this, buttons] {
        const Theme &present = themeNamed(settings().text(app::settings::theme));
        buttons->buttons().at(&present - themes().data())->setChecked(true);
    });
}

void AppearancePage::addScale()
{
    QFormLayout *group = addGroup(tr("Texts of the interface"));
    auto *box = new QSpinBox(this);
    box->setRange(leastPercent, mostPercent);
    box->setSingleStep(25);
    box->setSuffix(tr(" %"));
    box->setKeyboardTracking(false);
    box->setMinimumWidth(grid(36));
    box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    group->addRow(tr("Font &scale:"), box);
    follow(app::settings::fontScale, box, [this, box] {
        const QSignalBlocker quiet(box);
        bool isNumber = false;
        const double scale = settings().text(app::settings::fontScale).toDouble(&isNumber);
        // As far as numbers reach: the box brings what is too large or too small into its range.
        const bool isUsable = isNumber && std::abs(scale) < mostPercent;
        box->setValue(isUsable ? qRound(scale * 100) : 100);
    });
    connect(box, &QSpinBox::valueChanged, this, [this](int percent) {
        settings().set(app::settings::fontScale, QString::number(percent / 100.0));
    });
}

} // namespace vl::desktop
