#include "desktop/widgets/breakable.h"

#include <QtCore/QRegularExpression>

namespace vl::desktop {

QString breakable(const QString &text)
{
    static const QRegularExpression slash(QStringLiteral("(?<!\\d)/|/(?!\\d)"));
    // A letter and its accents stay together.
    static const QRegularExpression longRun(
        QStringLiteral("((?:[^\\s\\x{200b}]\\p{M}*){48})(?=[^\\s\\x{200b}])"),
        QRegularExpression::UseUnicodePropertiesOption);
    return QString(text)
        .replace(slash, QStringLiteral("/\u200b"))
        .replace(longRun, QStringLiteral("\\1\u200b"));
}

} // namespace vl::desktop
