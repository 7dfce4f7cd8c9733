// SPDX-License-Identifier: MIT
#include "bench/Figures.h"

#include <QApplication>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <vector>

namespace {

constexpr char kFloor[] = " (floor)";
constexpr char kBytes[] = "bytes";

struct Figure {
    std::string name;
    Limit limit;
};

std::vector<Figure> figures;

/// Keeps the median of each benchmark's repetitions.
class MedianReporter final : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.aggregate_name != "median")
                continue;
            const auto bytes = run.counters.find(kBytes);
            medians[run.run_name.function_name] =
                bytes == run.counters.end()
                    ? run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit)
                    : double{bytes->second};
        }
    }

    std::map<std::string, double> medians; ///< seconds or bytes
};

std::string shown(double value, Limit::Kind kind) {
    char text[32];
    if (kind == Limit::Bytes)
        std::snprintf(text, sizeof text, "%.2f MiB", value / (1 << 20));
    else if (value >= 1e-3)
        std::snprintf(text, sizeof text, "%.2f ms", value * 1e3);
    else
        std::snprintf(text, sizeof text, "%.2f us", value * 1e6);
    return text;
}

/// Prints a figure and its limit. False when it is above it or wasn't measured.
bool judge(const Figure& figure, const std::map<std::string, double>& medians) {
    const auto [kind, amount] = figure.limit;
    const auto measured = medians.find(figure.name);
    const auto floor = medians.find(figure.name + kFloor);
    if (measured == medians.end() || floor == medians.end()) {
        std::printf("%-58s not measured\n", figure.name.c_str());
        return false;
    }
    double value = measured->second;
    std::string result, limit;
    if (kind == Limit::Times) {
        value /= floor->second;
        char text[32];
        std::snprintf(text, sizeof text, "%.2f x", value);
        result = text;
        std::snprintf(text, sizeof text, "%.2f x", amount);
        limit = text;
    } else {
        value -= floor->second;
        result = shown(value, kind);
        limit = shown(amount, kind);
    }
    const bool within = value <= amount;
    std::printf("%-58s %11s %11s %11s %11s%s\n", figure.name.c_str(),
                shown(measured->second, kind).c_str(), shown(floor->second, kind).c_str(),
                result.c_str(), limit.c_str(), within ? "" : "  OVER");
    return within;
}

void run(benchmark::State& state, Measure measure, Limit::Kind kind) {
    double last = 0;
    for (auto _ : state) {
        last = measure();
        if (last < 0)
            return state.SkipWithError("failed");
        state.SetIterationTime(kind == Limit::Bytes ? 1.0 : last);
    }
    if (kind == Limit::Bytes)
        state.counters[kBytes] = last;
}

} // namespace

void addFigure(const std::string& name, Limit limit, Measure measured, Measure floor) {
    figures.push_back({name, limit});
    for (const auto& [measure, suffix] : {std::pair(measured, ""), std::pair(floor, kFloor)}) {
        auto* registered = benchmark::RegisterBenchmark(
            (name + suffix).c_str(), [measure = measure, limit](benchmark::State& state) {
                run(state, measure, limit.kind);
            });
        registered->UseManualTime()->MinTime(0.02)->Repetitions(9)->ReportAggregatesOnly();
    }
}

int main(int argc, char** argv) {
    const QByteArray platform = chooseDisplays();
    new QApplication(argc, argv);         // never destroyed: static widgets use it
    qputenv("QT_QPA_PLATFORM", platform); // for the programs that are started
    addPrefsFigures();
    addLinkFigures();
    addOverlayFigures();
    addPaletteFigures();
    addPreviewFigures();
    addTryFigures();
    addHotKeyFigures();
    addChangeFigures();
    addStartFigures();
    addCommandFigures();
    addLaunchFigures();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n%-58s %11s %11s %11s %11s\n", "figure", "measured", "floor", "result",
                "at most");
    bool within = true;
    for (const Figure& figure : figures)
        within &= judge(figure, reporter.medians);
    return within ? 0 : 1;
}
