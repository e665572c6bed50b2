#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <memory>

namespace vl::app {

/// The SHA-256 of bytes that come in pieces. The toolkit's own takes ten times as long.
class Sha256
{
public:
    Sha256();
    ~Sha256();
    Q_DISABLE_COPY_MOVE(Sha256)

    void add(QByteArrayView bytes);
    /// The sum of all that was added, as 64 lower-case hexadecimal digits; ends the sum.
    QByteArray finish();

    /// The sum of these bytes in the same form.
    static QByteArray of(QByteArrayView bytes);

private:
    struct Context;
    std::unique_ptr<Context> m_context;
};

} // namespace vl::app
