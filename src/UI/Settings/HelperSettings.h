#pragma once

#include "UI/Settings/HelperOperation.h"
#include "UI/Settings/HelperStatusFacts.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>

namespace kestrowind {

class ControlState;
class SystemInformation;

/// What the helper section shows. While somebody can see it, it keeps the helper's status fresh.
class HelperSettings final : public QObject {
    Q_OBJECT
    Q_PROPERTY(kestrowind::HelperStatusFacts status READ status NOTIFY changed FINAL)
    Q_PROPERTY(bool hasStatus READ hasStatus NOTIFY changed FINAL)
    Q_PROPERTY(QString version READ version NOTIFY changed FINAL)
    Q_PROPERTY(bool isOutdated READ isOutdated NOTIFY changed FINAL)
    Q_PROPERTY(bool hasFailure READ hasFailure NOTIFY changed FINAL)
    Q_PROPERTY(QString failure READ failure NOTIFY changed FINAL)
    Q_PROPERTY(bool isUnlocking READ isUnlocking NOTIFY changed FINAL)
    Q_PROPERTY(bool needsApproval READ needsApproval NOTIFY changed FINAL)
    Q_PROPERTY(kestrowind::HelperOperation* operation READ operation CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    /// From the end of a question for the status to the next one.
    static constexpr std::chrono::milliseconds defaultInterval{2000};

    /// The references must outlive this.
    HelperSettings(HelperControlling& helper, const ControlState& control,
                   HelperOperation& operation, const SystemInformation& information,
                   std::chrono::milliseconds interval = defaultInterval);
    ~HelperSettings() override;

    [[nodiscard]] HelperStatusFacts status() const;
    /// False until the helper has answered.
    [[nodiscard]] bool hasStatus() const;
    /// The helper's; empty until it has answered.
    [[nodiscard]] QString version() const;
    /// The helper is another version than the one that this application comes with.
    [[nodiscard]] bool isOutdated() const { return m_helper.isHelperOutdated(); }
    /// The helper reports that it failed, and why.
    [[nodiscard]] bool hasFailure() const;
    [[nodiscard]] QString failure() const;
    [[nodiscard]] bool isUnlocking() const;
    /// The helper is installed, and the system's settings do not allow it to run.
    [[nodiscard]] bool needsApproval() const { return m_needsApproval; }
    [[nodiscard]] HelperOperation* operation() const { return &m_operation; }

    void setSeen(bool isSeen);

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<void> askForStatus();
    void askForApproval();

    HelperControlling& m_helper;
    const ControlState& m_control;
    HelperOperation& m_operation;
    const SystemInformation& m_information;
    bool m_needsApproval = false;
    QTimer m_nextQuestion;
    bool m_isSeen = false;
    int m_appearance = 0; ///< counts; a question of an earlier one leads to no other
};

} // namespace kestrowind
