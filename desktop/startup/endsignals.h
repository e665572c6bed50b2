#pragma once

#include <QtCore/QObject>

namespace vl::desktop {

/// Tells in the event loop when the system asks the program to end: at the end of the session, when
/// its terminal goes, or by Ctrl+C there. A second request ends the program at once. There is at
/// most one of these; it says nothing where the system has no such requests.
class EndSignals final : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;

Q_SIGNALS:
    void asked();

private:
    int m_readEnd = -1;
};

} // namespace vl::desktop
