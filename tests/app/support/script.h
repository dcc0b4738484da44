// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <string>
#include <string_view>

class QLineEdit;
class QWidget;

namespace kaldo {

/// A user at the windows: does one thing after the other, each as soon as the window in front has
/// what it needs. Windows open over each other and wait for the user, so the script runs from the
/// event loop of whichever is in front.
class Script {
 public:
  /// Clicks the button of that name in the window in front.
  Script& Click(std::string_view name);

  /// Clicks the button that carries a number of the screen table.
  Script& ClickNumber(int number);

  /// Types a text into a field, in place of what stands there.
  Script& Type(std::string_view name, const QString& text);

  /// Presses a key in the window in front, where the keyboard is.
  Script& Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  /// Types a text where the keyboard is.
  Script& TypeHere(const QString& text);

  /// Waits for a screen of the flow.
  Script& Await(std::string_view screen);

  /// Waits for a message, notes its text and details, and presses its "OK" (or `answer`).
  Script& Answer(std::string_view answer = "OK");

  /// Closes the window in front, as its corner button does.
  Script& CloseWindow();

  /// Waits until the condition holds.
  Script& Until(std::function<bool()> condition, std::string what);

  /// Drops a file onto the widget of that name.
  Script& Drop(std::string_view name, const QString& path);

  /// Does anything else with the window in front, but opens none.
  Script& Do(std::function<void(QWidget&)> act);

  /// Starts with `begin`, then goes through all steps. Ends when they are done; after ten seconds
  /// and more without progress it fails, tells in which step, and closes what is open.
  bool Run(const std::function<void()>& begin);

  /// The messages shown, in their order, and what their details said.
  const QStringList& Messages() const { return messages_; }
  const QStringList& Details() const { return details_; }

 private:
  struct Step {
    std::string what;
    std::function<bool()> ready;
    std::function<void()> act;
    bool opens_window = true;  ///< perhaps
  };

  Script& Add(std::string what, std::function<bool()> ready, std::function<void()> act);
  void Tick();
  void GiveUp();

  QObject context_;  ///< no tick outlives the script
  std::deque<Step> steps_;
  QStringList messages_;
  QStringList details_;
  int idle_ticks_ = 0;
  bool failed_ = false;
  bool giving_up_ = false;
  bool beginning_ = false;
};

/// The window in front: an open menu, the modal window, or else the one that is active.
QWidget* WindowInFront();

/// A visible widget of the window in front, by its object name or its number.
QWidget* VisibleWidget(std::string_view name);
QWidget* VisibleWidget(int number);

/// A visible line to type into. A screen and its field may have one name.
QLineEdit* VisibleField(std::string_view name);

}  // namespace kaldo
