// SPDX-License-Identifier: MIT
#include "bench/Figures.h"

#include <QApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <deque>
#include <vector>

namespace {

struct Figure {
    std::string name;
    Limit limit;
    Measure measured, floor;
    std::vector<double> results, floors; ///< in what the limit is in; without a floor, none

    bool isTime() const { return limit.kind == Limit::Times || limit.kind == Limit::Plus; }
};

std::deque<Figure> figures;

double median(std::vector<double> values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
}

std::string shown(double value, Limit::Kind kind) {
    char text[32];
    if (kind == Limit::Bytes)
        std::snprintf(text, sizeof text, "%.2f MiB", value / (1 << 20));
    else if (kind == Limit::Share)
        std::snprintf(text, sizeof text, "%.2f %%", value * 100);
    else if (kind == Limit::Count)
        std::snprintf(text, sizeof text, "%.0f", value);
    else if (value >= 1e-3)
        std::snprintf(text, sizeof text, "%.2f ms", value * 1e3);
    else
        std::snprintf(text, sizeof text, "%.2f us", value * 1e6);
    return text;
}

/// Prints a figure and its limit. False when it is above it or wasn't measured.
bool judge(const Figure& figure) {
    const auto [kind, amount] = figure.limit;
    if (figure.results.empty()) {
        std::printf("%-58s not measured\n", figure.name.c_str());
        return false;
    }
    const double measured = median(figure.results);
    const double floor = figure.floor ? median(figure.floors) : 0;
    double value = measured;
    std::string result, limit;
    if (kind == Limit::Times) {
        value /= floor;
        char text[32];
        std::snprintf(text, sizeof text, "%.2f x", value);
        result = text;
        std::snprintf(text, sizeof text, "%.2f x", amount);
        limit = text;
    } else {
        if (kind == Limit::Plus || kind == Limit::Bytes)
            value -= floor;
        result = shown(value, kind);
        limit = shown(amount, kind);
    }
    const bool within = value <= amount;
    std::printf("%-58s %11s %11s %11s %11s%s\n", figure.name.c_str(), shown(measured, kind).c_str(),
                figure.floor ? shown(floor, kind).c_str() : "", result.c_str(), limit.c_str(),
                within ? "" : "  OVER");
    return within;
}

/// Measures both in turn, so that what else the machine does meanwhile slows both.
void run(benchmark::State& state, Figure& figure) {
    for (auto _ : state) {
        const double result = figure.measured(), floor = figure.floor ? figure.floor() : 0;
        if (result < 0 || floor < 0) {
            figure.results.clear();
            return state.SkipWithError("failed");
        }
        state.SetIterationTime(figure.isTime() ? result : 1.0);
        figure.results.push_back(result);
        figure.floors.push_back(floor);
    }
}

} // namespace

void addFigure(const std::string& name, Limit limit, Measure measured, Measure floor) {
    figures.push_back({name, limit, measured, floor, {}, {}});
    benchmark::RegisterBenchmark(
        name.c_str(), [&figure = figures.back()](benchmark::State& state) { run(state, figure); })
        ->UseManualTime()
        ->MinTime(0.02)
        ->Repetitions(9)
        ->ReportAggregatesOnly();
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
    addAgentFigures();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();

    std::printf("\n%-58s %11s %11s %11s %11s\n", "figure", "measured", "floor", "result",
                "at most");
    bool within = true;
    for (const Figure& figure : figures)
        within &= judge(figure);
    return within ? 0 : 1;
}
