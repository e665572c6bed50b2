#include "desktop/shell/layouts.h"

#include "app/base/settings.h"
#include "app/models/prompts.h"
#include "desktop/actions/actionregistry.h"
#include "desktop/shell/notices.h"
#include "desktop/shell/panelhost.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QMenu>

#include <algorithm>
#include <iterator>

namespace vl::desktop {

namespace {

const QLatin1String sessionKey("general/layout");
const QLatin1String namesKey("general/layoutNames");

/// A layout for one sort of work.
struct ShippedLayout
{
    const char *name;
    Arrangement arrangement;
};

constexpr int halfBelow = 40;

// clang-format off
const ShippedLayout shippedLayouts[] = {
    {QT_TRANSLATE_NOOP("Layouts", "Write"), {{"manuscript", "editor"}, 18, 0, halfBelow}},
    {QT_TRANSLATE_NOOP("Layouts", "Plan"), {{"manuscript", "editor", "inspector"}, 34, 28, halfBelow}},
    {QT_TRANSLATE_NOOP("Layouts", "World"), {{"codex", "editor", "inspector"}, 24, 34, halfBelow}},
    {QT_TRANSLATE_NOOP("Layouts", "Play"), {{"manuscript", "codex", "editor", "inspector"}, 26, 26, 65}},
    {QT_TRANSLATE_NOOP("Layouts", "Edit"), {{"manuscript", "editor", "inspector"}, 18, 22, halfBelow}},
};
// clang-format on

QString nameOf(const ShippedLayout &layout)
{
    return QCoreApplication::translate("Layouts", layout.name);
}

/// A name may hold anything, a key of the settings may not.
QString stateKey(const QString &name)
{
    return QStringLiteral("layouts/") + QString::fromLatin1(name.toUtf8().toPercentEncoding());
}

} // namespace

Layouts::Layouts(PanelHost &panels, app::Settings &settings, app::Prompts &prompts,
                 Notices &notices, QObject *parent)
    : QObject(parent)
    , m_panels(panels)
    , m_settings(settings)
    , m_prompts(prompts)
    , m_notices(notices)
{
}

void Layouts::bind(ActionRegistry &actions)
{
    actions.bind("view.saveLayout", this, &Layouts::askAndSave);
    actions.bind("view.deleteLayout", this, &Layouts::askAndRemove);
    actions.bind("view.resetLayout", &m_panels, &PanelHost::resetLayout);
    QAction *removal = actions["view.deleteLayout"];
    const auto enable = [this, removal] { removal->setEnabled(!names().isEmpty()); };
    connect(this, &Layouts::changed, removal, enable);
    enable();
}

void Layouts::showIn(QMenu *menu)
{
    const auto fill = [this, menu] {
        menu->clear();
        for (const ShippedLayout &layout : shippedLayouts)
            addTo(menu, nameOf(layout), [this, &layout] { m_panels.arrange(layout.arrangement); });
        menu->addSeparator();
        for (const QString &name : names())
            addTo(menu, name, [this, name] { apply(name); });
    };
    connect(this, &Layouts::changed, menu, fill);
    fill();
}

void Layouts::addTo(QMenu *menu, const QString &name, const std::function<void()> &apply)
{
    QString text = name;
    menu->addAction(text.replace(u'&', QLatin1String("&&")), this, apply);
}

QStringList Layouts::names() const
{
    return m_settings.text(namesKey).split(u'\n', Qt::SkipEmptyParts);
}

void Layouts::keep(const QString &name, const QByteArray &state)
{
    m_settings.setBytes(stateKey(name), state);
    QStringList all = names();
    if (!all.contains(name))
        all.append(name);
    all.sort(Qt::CaseInsensitive);
    m_settings.set(namesKey, all.join(u'\n'));
    Q_EMIT changed();
}

void Layouts::save(const QString &name)
{
    keep(name, m_panels.saveLayout());
}

void Layouts::apply(const QString &name)
{
    if (!m_panels.restoreLayout(m_settings.bytes(stateKey(name))))
        m_notices.show(tr("The perspective “%1” cannot be read; the first layout is shown instead.")
                           .arg(name));
}

void Layouts::remove(const QString &name)
{
    const QByteArray state = m_settings.bytes(stateKey(name));
    m_settings.remove(stateKey(name));
    QStringList all = names();
    all.removeAll(name);
    m_settings.set(namesKey, all.join(u'\n'));
    Q_EMIT changed();
    m_notices.show(tr("Deleted the perspective “%1”.").arg(name), tr("Undo"),
                   [this, name, state] { keep(name, state); });
}

void Layouts::askAndSave()
{
    const QString name =
        m_prompts.askText(tr("Save Current Layout"), tr("Name of the perspective:"), QString())
            .value_or(QString())
            .simplified();
    if (name.isEmpty())
        return;
    const bool isShipped = std::any_of(
        std::begin(shippedLayouts), std::end(shippedLayouts), [&name](const ShippedLayout &layout) {
            return name.compare(nameOf(layout), Qt::CaseInsensitive) == 0;
        });
    if (isShipped) {
        m_prompts.showError(
            tr("Save Current Layout"),
            tr("“%1” is a perspective that comes with Ivorel. Choose another name.").arg(name));
        return;
    }
    if (names().contains(name)
        && !m_prompts.confirm(tr("There is a perspective “%1” already.").arg(name),
                              tr("The present arrangement takes its place."), tr("&Replace")))
        return;
    save(name);
    m_notices.show(tr("Saved the perspective “%1”.").arg(name));
}

void Layouts::askAndRemove()
{
    const QString name =
        m_prompts.chooseOne(tr("Delete Perspective"), tr("Perspective to delete:"), names());
    if (!name.isEmpty())
        remove(name);
}

void Layouts::saveSession()
{
    m_settings.setBytes(sessionKey, m_panels.saveLayout());
}

void Layouts::restoreSession()
{
    m_panels.restoreLayout(m_settings.bytes(sessionKey));
}

} // namespace vl::desktop
