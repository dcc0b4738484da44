// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kaldo {

/// From where to where a share lies with a probability of 95 %; within 0 and 1.
struct Interval {
  double from = 0;
  double to = 1;
};

/// Of a share of n independent ones: Wilson, Journal of the American Statistical Association 22
/// (1927) 209-212, doi:10.1080/01621459.1927.10502953.
Interval WilsonInterval(double share, double n);

/// Of an estimate with a standard error, as if its error were normal: 1.96 standard errors on
/// either side. Where the error is 0, as after iterations that all gave the same, it is no wider
/// than that.
Interval NormalInterval(double share, double standard_error);

}  // namespace kaldo
