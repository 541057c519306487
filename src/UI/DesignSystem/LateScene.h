#pragma once

#include "Platform/SystemAppearance.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QQuickView>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace kestrowind {

/// A window and a QML engine of its own, which exist only while somebody wants them: made on
/// demand, and freed some time after the window was hidden. Belongs to the main thread.
class LateScene final : public QObject {
    Q_OBJECT

public:
    struct Setup {
        /// What stands behind the scene, for the scheme that it has.
        std::function<QColor(ColorScheme)> background;
        SystemAppearance* systemAppearance = nullptr; ///< may be absent; outlives the scene
        std::chrono::milliseconds releaseDelay{};
    };

    explicit LateScene(Setup setup);
    ~LateScene() override;

    /// Absent while nothing of the scene exists.
    [[nodiscard]] QQuickView* view() const { return m_view.get(); }
    /// Makes the window, with nothing in it yet; only while there is none. Without a scheme of its
    /// own it follows the system.
    QQuickView& make(std::optional<ColorScheme> forcedScheme = {});
    /// Fills the window by the file's root item, which takes the model as its required property
    /// `model`. The model must outlive the window.
    void load(const QUrl& source, QObject& model);

Q_SIGNALS:
    void aboutToRelease();
    /// The window and the engine are gone.
    void released();

private:
    void paintBackground();
    void release();

    Setup m_setup;
    QTimer m_releaseTimer;
    // The window and what is in it go before the engine.
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickView> m_view;
};

} // namespace kestrowind
