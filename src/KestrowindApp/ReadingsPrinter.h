#pragma once

#include "Core/TelemetrySample.h"
#include "KestrowindApp/LaunchOptions.h"

#include <QObject>

#include <string>

namespace kestrowind {

class AppState;

/// Writes each sample, with what the engine and the helper make of it, as one line to standard
/// output. Runs after the engine has seen the sample. A line that would have to wait is left out.
class ReadingsPrinter final : public QObject {
    Q_OBJECT

public:
    ReadingsPrinter(const AppState& appState, ReadingsFormat format);

    /// One JSON object; what is not known is null.
    [[nodiscard]] static std::string json(const AppState& appState, const TelemetrySample& sample);
    /// One aligned line for people.
    [[nodiscard]] static std::string text(const AppState& appState, const TelemetrySample& sample);

Q_SIGNALS:
    /// Standard output takes no more.
    void outputClosed();

private:
    void print(const TelemetrySample& sample);

    const AppState& m_appState;
    ReadingsFormat m_format;
};

} // namespace kestrowind
