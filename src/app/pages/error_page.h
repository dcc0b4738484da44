// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>
#include <array>

#include <tl/expected.hpp>

#include "app/base/flow_page.h"
#include "app/base/tr.h"
#include "method/error_model.h"

class QButtonGroup;
class QLabel;
class QLineEdit;

namespace kaldo {

/// The choice of the transmission error: No Error, Uniform or Non Uniform, with their
/// probabilities. Nothing is chosen at first: an error model is a statement about one's laboratory.
class ErrorModelBox : public QGroupBox {
 public:
  explicit ErrorModelBox(Phrase title);

  void Set(const ErrorModel& model);

  /// The model as typed. A field that holds no number is a Problem.
  tl::expected<ErrorModel, Problem> Model() const;

 private:
  QLayout* UniformRow();
  QLayout* NonUniformRow();
  void ShowSum();

  QButtonGroup* kinds_;
  QLineEdit* epsilon_ = nullptr;
  std::array<QLineEdit*, 5> probabilities_{};  ///< minus2 to plus2
  QLabel* sum_;
};

/// The error screen of the allocation flows.
class ErrorPage : public FlowPage {
 public:
  explicit ErrorPage(Phrase caption);

  ErrorModelBox& Box() const { return *box_; }

 private:
  ErrorModelBox* box_;
};

}  // namespace kaldo
