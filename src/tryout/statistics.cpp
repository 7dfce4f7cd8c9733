// SPDX-License-Identifier: MIT
#include "src/tryout/statistics.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tryout {

namespace {

/// For a normal distribution: the standard deviation divided by the median absolute deviation.
constexpr double kDeviationPerMedianDeviation = 1.4826;
/// And divided by the lower quartile of the distances between pairs: without the corrections for
/// small samples it is Q_n of Rousseeuw and Croux (1993).
constexpr double kDeviationPerPairQuartile = 2.2191;

std::vector<double> sorted(std::span<const double> sample) {
    std::vector<double> values(sample.begin(), sample.end());
    std::sort(values.begin(), values.end());
    return values;
}

/// The share of the chi-square distribution below `value`: the regularised lower incomplete gamma
/// function, by its series (Abramowitz and Stegun 1964, chapter 6).
double chiSquareShare(double value, int degrees) {
    const double a = degrees / 2.0, x = value / 2;
    double term = 1 / a, sum = term;
    for (int n = 1; n < 1000 && term > sum * 1e-15; ++n) {
        term *= x / (a + n);
        sum += term;
    }
    return sum * std::exp(a * std::log(x) - x - std::lgamma(a));
}

/// Ranks from 0. Equal values share their mean rank.
std::vector<double> ranks(std::span<const double> sample) {
    const std::vector<double> order = sorted(sample);
    std::vector<double> places;
    for (const double value : sample) {
        const auto [first, last] = std::equal_range(order.begin(), order.end(), value);
        places.push_back(static_cast<double>((first - order.begin()) + (last - order.begin()) - 1) /
                         2);
    }
    return places;
}

/// Spearman's coefficient, -1 to 1. 0 when one side doesn't vary.
double rankCorrelation(std::span<const double> left, std::span<const double> right) {
    const std::vector<double> x = ranks(left), y = ranks(right);
    const double mean = (static_cast<double>(x.size()) - 1) / 2;
    double xx = 0, yy = 0, xy = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        xx += (x[i] - mean) * (x[i] - mean);
        yy += (y[i] - mean) * (y[i] - mean);
        xy += (x[i] - mean) * (y[i] - mean);
    }
    return xx > 0 && yy > 0 ? xy / std::sqrt(xx * yy) : 0;
}

} // namespace

double median(std::span<const double> sample) {
    if (sample.empty())
        return 0;
    const std::vector<double> values = sorted(sample);
    const std::size_t half = values.size() / 2;
    return values.size() % 2 == 1 ? values[half] : (values[half - 1] + values[half]) / 2;
}

double spread(std::span<const double> sample) {
    const double middle = median(sample);
    std::vector<double> distances;
    for (const double value : sample)
        distances.push_back(std::abs(value - middle));
    return kDeviationPerMedianDeviation * median(distances);
}

double spreadOfPairs(std::span<const double> sample) {
    std::vector<double> distances;
    for (std::size_t i = 0; i < sample.size(); ++i)
        for (std::size_t j = 0; j < i; ++j)
            distances.push_back(std::abs(sample[i] - sample[j]));
    return kDeviationPerPairQuartile * percentile(distances, 0.25);
}

double spreadBound(double spread, int count) {
    return spread * std::sqrt((count - 1) / chiSquareQuantile(0.05, count - 1));
}

double percentile(std::span<const double> sample, double share) {
    if (sample.empty())
        return 0;
    const auto place = std::ceil(share * static_cast<double>(sample.size()) - 1e-9);
    return sorted(sample)[static_cast<std::size_t>(std::max(place, 1.0)) - 1];
}

double normalShare(double value) {
    return std::erfc(-value / std::numbers::sqrt2) / 2;
}

double chiSquareQuantile(double share, int degrees) {
    double low = 0, high = degrees + 20 * std::sqrt(2.0 * degrees) + 20;
    for (int step = 0; step < 80; ++step) {
        const double middle = (low + high) / 2;
        (chiSquareShare(middle, degrees) < share ? low : high) = middle;
    }
    return high;
}

// Fisher's transformation: the inverse hyperbolic tangent of a correlation is nearly normal. It is
// made for values; for ranks it is assumed to be close enough.
bool risesWith(std::span<const double> along, std::span<const double> values, double risk) {
    if (values.size() < 4)
        return false;
    const double correlation = std::min(rankCorrelation(along, values), 0.999999);
    return std::atanh(correlation) * std::sqrt(static_cast<double>(values.size()) - 3) > risk;
}

} // namespace tryout
