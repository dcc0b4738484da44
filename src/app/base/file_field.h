// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "app/base/form_fields.h"

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace kaldo {

/// A field for the name of an input file: typed, picked or dropped. Below it stands what was read
/// from the file, so that a wrong file is seen before anything runs.
class FileField : public QWidget {
 public:
  /// Tells in one line what a file holds; gets the path as typed, never empty.
  using Describer = std::function<std::string(const std::string&)>;

  explicit FileField(const FieldText& text, QWidget* parent = nullptr);

  void SetDescriber(Describer describer) { describer_ = std::move(describer); }

  /// Tells what a file of another program holds, in a sentence; nothing where it is none.
  using Recogniser = std::function<std::optional<std::string>(const std::string&)>;

  /// Where such a file is named, its sentence stands in the line below, beside a button to convert
  /// it.
  void SetRecogniser(Recogniser recogniser, std::function<void()> convert);

  /// Tells whether that line names a fault, which is then seen by its colour.
  using Judge = std::function<bool(const std::string&)>;
  void SetJudge(Judge is_fault) { is_fault_ = std::move(is_fault); }

  /// Called whenever another file was named.
  void SetOnChange(std::function<void()> on_change) { on_change_ = std::move(on_change); }

  /// The path as typed; empty when no file is named.
  std::string Path() const;
  void SetPath(const std::string& path);

  /// Reads the file again, for instance because the names-of-loci file is another one.
  void Refresh();

  QSize sizeHint() const override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  /// Reads the file again: it, or the working folder, may have changed since.
  void showEvent(QShowEvent* event) override;

 private:
  void Browse();
  void ShowHint(const std::string& path);

  QLineEdit* path_;
  QLabel* hint_;
  QTimer typing_;  ///< files are not read at every key
  QPushButton* convert_;
  Describer describer_;
  Recogniser recogniser_;
  Judge is_fault_;
  std::function<void()> on_change_;
  QString title_;
};

/// A file field with its label in a form.
FileField* AddFileField(QFormLayout& form, const FieldText& text);

}  // namespace kaldo
