#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace kestrowind {

/// Knows when the helper does nothing of what it is asked, whatever the cause: frozen, refused by
/// launchd, replaced by another program, or without the fans. The helper's state and status cannot
/// tell: a helper that says nothing leaves both as they were. Belongs to the main thread.
class ControlWatch final : public QObject {
    Q_OBJECT

public:
    /// A helper that was killed is back, and obeyed again, within four seconds.
    static constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(10);

    explicit ControlWatch(std::chrono::milliseconds patience = defaultPatience);

    /// Something was asked of the helper.
    void expect();
    /// It was done, or is not wanted any more.
    void clear();

    /// Nothing that was asked has been done for the patience, counted from the first time.
    [[nodiscard]] bool isDenied() const { return m_isDenied; }

Q_SIGNALS:
    void isDeniedChanged();

private:
    void setIsDenied(bool isDenied);

    QTimer m_patience;
    QElapsedTimer m_sinceLastExpected;
    bool m_isDenied = false;
};

} // namespace kestrowind
