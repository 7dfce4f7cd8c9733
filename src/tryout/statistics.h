// SPDX-License-Identifier: MIT
#pragma once

#include <span>

/// Statistics of small samples that a single stray value doesn't spoil. Samples are in any order
/// and unit; results have the sample's unit.
namespace tryout {

/// 0 for an empty sample.
double median(std::span<const double> sample);

/// An estimate of the standard deviation from the median absolute deviation. Half of the values may
/// be strays. 0 for an empty sample.
double spread(std::span<const double> sample);

/// The same from the lower quartile of the distances between all pairs. A quarter of the values may
/// be strays. It varies less from sample to sample. 0 for fewer than two values.
double spreadOfPairs(std::span<const double> sample);

/// The 95 % upper bound of the true spread, if `spread` is the standard deviation of `count`
/// values, at least two. For 12 values it is 1.55 times as much.
double spreadBound(double spread, int count);

/// The smallest value of the sample that isn't exceeded by at least `share` of it (above 0, up to
/// 1). 0 for an empty sample.
double percentile(std::span<const double> sample, double share);

/// The share of the standard normal distribution below `value`.
double normalShare(double value);

/// The value below which lies `share` (between 0 and 1) of the chi-square distribution with that
/// many degrees of freedom.
double chiSquareQuantile(double share, int degrees);

/// Whether the values rise with the corresponding ones of `along`, more than by chance. `risk` is
/// the normal quantile of the accepted risk (1.645 for 5 %, 2.326 for 1 %). False for fewer than
/// four values.
bool risesWith(std::span<const double> along, std::span<const double> values, double risk);

} // namespace tryout
