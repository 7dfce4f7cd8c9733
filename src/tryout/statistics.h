// SPDX-License-Identifier: MIT
#pragma once

#include <span>

/// Small samples, described so that a single stray value spoils nothing. Samples are in any order
/// and unit; results are in the sample's unit.
namespace tryout {

/// 0 for an empty sample.
double median(std::span<const double> sample);

/// What the standard deviation of a normal distribution would be, from the median absolute
/// deviation: half of the values may be strays. 0 for an empty sample.
double spread(std::span<const double> sample);

/// The value that 95 % of samples of `count` would not show the true spread to exceed, if
/// `spread` were their standard deviation: 1.55 times as much for 12 values. At least two values.
double spreadBound(double spread, int count);

/// The smallest value of the sample that at least `share` of it (above 0, up to 1) don't exceed. 0
/// for an empty sample.
double percentile(std::span<const double> sample, double share);

/// The share of a normal distribution, of mean 0 and deviation 1, that lies below `value`.
double normalShare(double value);

/// Below it lies `share` (between 0 and 1) of the chi-square distribution of that many degrees of
/// freedom.
double chiSquareQuantile(double share, int degrees);

/// Whether the values rise along with those at the same places of `along`, by more than chance
/// brings about in `risk` of all samples, given as its normal quantile (1.645 for 5 %, 2.326 for
/// 1 %). False for fewer than four values.
bool risesWith(std::span<const double> along, std::span<const double> values, double risk);

} // namespace tryout
