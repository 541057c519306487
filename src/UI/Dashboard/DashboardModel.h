#pragma once

#include "UI/Dashboard/FanGaugeFacts.h"
#include "UI/Dashboard/HistoryExport.h"
#include "UI/Dashboard/LineChart.h"
#include "UI/Dashboard/TemperatureFacts.h"
#include "UI/DesignSystem/VisibilityWatch.h"

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kestrowind {

class AppState;
class TelemetryStore;

/// What the dashboard shows, derived from the application's state with every sample. Which of its
/// pictures is shown and whether the helper is missing are always known; the rest is derived only
/// while somebody can see the view, and at once when they can again.
class DashboardModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(State state READ state NOTIFY stateChanged FINAL)
    Q_PROPERTY(bool helperMissing READ helperMissing NOTIFY helperMissingChanged FINAL)
    Q_PROPERTY(kestrowind::RowList* fans READ fans CONSTANT FINAL)
    Q_PROPERTY(kestrowind::TemperatureFacts cpu READ cpu NOTIFY cpuChanged FINAL)
    Q_PROPERTY(kestrowind::TemperatureFacts gpu READ gpu NOTIFY gpuChanged FINAL)
    Q_PROPERTY(QString windowCaption READ windowCaption NOTIFY windowCaptionChanged FINAL)
    Q_PROPERTY(bool hasHistory READ hasHistory NOTIFY hasHistoryChanged FINAL)
    Q_PROPERTY(kestrowind::LineChart temperatures READ temperatures NOTIFY historyChanged FINAL)
    Q_PROPERTY(kestrowind::LineChart fanSpeeds READ fanSpeeds NOTIFY historyChanged FINAL)
    Q_PROPERTY(kestrowind::HistoryExport* historyExport READ historyExport CONSTANT FINAL)
    QML_ELEMENT
    QML_UNCREATABLE("made with the application's state")

public:
    enum class State {
        Loading,     ///< no sample yet
        Content,     ///< there are fans to show
        Unsupported, ///< a machine without fans, or one that says nothing
    };
    Q_ENUM(State)

    /// Both must outlive the model.
    DashboardModel(AppState& appState, FileDialogs& fileDialogs, QObject* parent = nullptr);

    [[nodiscard]] static State select(const TelemetryStore& telemetry);

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool helperMissing() const;
    /// Of the newest sample.
    [[nodiscard]] FanGauges* fans() { return &m_fans; }
    [[nodiscard]] const TemperatureFacts& cpu() const { return m_cpu; }
    [[nodiscard]] const TemperatureFacts& gpu() const { return m_gpu; }
    [[nodiscard]] const QString& windowCaption() const { return m_windowCaption; }
    /// Whether there is enough of it for the charts.
    [[nodiscard]] bool hasHistory() const { return m_hasHistory; }
    [[nodiscard]] const LineChart& temperatures() const { return m_temperatures; }
    [[nodiscard]] const LineChart& fanSpeeds() const { return m_fanSpeeds; }

    [[nodiscard]] HistoryExport* historyExport() { return &m_historyExport; }

    /// The item that shows the model; without one the model counts as seen.
    Q_INVOKABLE void setView(QQuickItem* view);

Q_SIGNALS:
    void stateChanged();
    void helperMissingChanged();
    void cpuChanged();
    void gpuChanged();
    void windowCaptionChanged();
    void hasHistoryChanged();
    void historyChanged();

private:
    void takeSample();
    [[nodiscard]] bool isRefreshWanted() const;
    void refreshIfSeen();
    void refreshFans();
    void refreshTemperatures();
    void refreshHistory();

    AppState& m_appState;
    State m_state = State::Loading;
    FanGauges m_fans;
    TemperatureFacts m_cpu;
    TemperatureFacts m_gpu;
    QString m_windowCaption;
    bool m_hasHistory = false;
    LineChart m_temperatures;
    LineChart m_fanSpeeds;
    HistoryExport m_historyExport;
    VisibilityWatch m_visibility;
};

} // namespace kestrowind
