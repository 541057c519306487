#include "Core/LocalizedText.h"
#include "UI/Dashboard/FanSpeedHistory.h"
#include "UI/Dashboard/HistorySamples.h"
#include "UI/Dashboard/LineChartPainter.h"
#include "UI/Dashboard/TemperatureHistory.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <cmath>

namespace kestrowind {
namespace {

/// Half an hour of two fans.
QList<TelemetrySample> fullHistory() {
    QList<TelemetrySample> history;
    for (int tick = 0; tick < 900; ++tick) {
        const double load = std::sin(tick / 70.0) + 0.1 * std::sin(tick * 12.9898);
        history.append(
            {.timestamp = std::chrono::system_clock::time_point(std::chrono::seconds(2 * tick)),
             .temperatures = {.cpuMax = 65 + 20 * load, .gpuMax = 55 + 12 * load},
             .fans = {{.index = 0, .actualRPM = 4000 + 1500 * load, .maxRPM = 6550},
                      {.index = 1, .actualRPM = 4300 + 1500 * load, .maxRPM = 6550}}});
    }
    return history;
}

void deriveCharts(benchmark::State& state) {
    const QList<TelemetrySample> history = fullHistory();
    for ([[maybe_unused]] auto _ : state) {
        const QList<TelemetrySample> samples = HistorySamples::downsampled(history);
        benchmark::DoNotOptimize(TemperatureHistory::chart(samples));
        benchmark::DoNotOptimize(FanSpeedHistory::chart(samples));
    }
}
BENCHMARK(deriveCharts)->Unit(benchmark::kMillisecond);

/// At device pixels a point.
void paint(benchmark::State& state, const LineChart& chart, QSize points) {
    const auto scale = static_cast<int>(state.range(0));
    QImage image(points * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    for ([[maybe_unused]] auto _ : state) {
        image.fill(Qt::transparent);
        QPainter painter(&image);
        LineChartPainter::paint(painter, chart, {.size = points, .scheme = ColorScheme::dark});
    }
}

void paintTemperatures(benchmark::State& state) {
    paint(state, TemperatureHistory::chart(HistorySamples::downsampled(fullHistory())), {820, 190});
}
BENCHMARK(paintTemperatures)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void paintFanSpeeds(benchmark::State& state) {
    paint(state, FanSpeedHistory::chart(HistorySamples::downsampled(fullHistory())), {820, 150});
}
BENCHMARK(paintFanSpeeds)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kestrowind

int main(int argc, char* argv[]) {
    QGuiApplication application(argc, argv); // fonts
    kestrowind::installLocalizable();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
