// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/support/script.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <algorithm>

#include "app/base/screen_table.h"
#include "app/base/text.h"

namespace kaldo {

namespace {

constexpr int kTick = 5;              // milliseconds
constexpr int kPatientTicks = 200;    // a second for windows to come and go on their own
constexpr int kMostIdleTicks = 2000;  // at least ten seconds

QMessageBox* MessageInFront() { return qobject_cast<QMessageBox*>(WindowInFront()); }

QWidget* KeyboardWidget() {
  QWidget* const window = WindowInFront();
  QWidget* const focus = window != nullptr ? window->focusWidget() : nullptr;
  return focus != nullptr ? focus : window;
}

/// Whether keys would go to the window in front. After a message the desktop gives them back to the
/// window below; without a desktop this does it.
bool HasKeyboard() {
  QWidget* const window = WindowInFront();
  if (window == nullptr || window == QApplication::activePopupWidget() ||
      window == QApplication::activeWindow()) {
    return window != nullptr;
  }
  window->activateWindow();
  return false;
}

bool Shows(const QWidget& window, const std::string& wanted) {
  const auto found = window.findChildren<QWidget*>(Text(wanted));
  return window.objectName() == Text(wanted) ||
         std::any_of(found.begin(), found.end(), [](QWidget* child) { return child->isVisible(); });
}

/// What a user does who sees the window behind another one: without a desktop the window that was
/// opened last is not always in front.
void BringToFront(const std::string& wanted) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && Shows(*window, wanted)) {
      window->activateWindow();
      return;
    }
  }
}

/// A text as typed, letters with accents too.
void TypeKeys(QWidget* widget, const QString& text) {
  for (const QChar letter : text) {
    if (letter.unicode() < 0x80) {
      QTest::keyClick(widget, letter.toLatin1());
    } else {
      QTest::sendKeyEvent(QTest::Click, widget, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
  }
}

/// What a file manager does: the drop comes only where the widget took the file when it came in.
void DropFile(QWidget& target, const QString& path) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path)});
  const QPoint middle = target.rect().center();
  QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  enter.ignore();
  QApplication::sendEvent(&target, &enter);
  if (enter.isAccepted()) {
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
  }
}

QAbstractButton* ButtonOf(QMessageBox& box, std::string_view caption) {
  for (QAbstractButton* button : box.buttons()) {
    if (button->text().remove(QLatin1Char('&')) == Text(caption)) {
      return button;
    }
  }
  return nullptr;
}

}  // namespace

QWidget* WindowInFront() {
  if (QWidget* const popup = QApplication::activePopupWidget()) {
    return popup;
  }
  if (QWidget* const modal = QApplication::activeModalWidget()) {
    return modal;
  }
  if (QWidget* const active = QApplication::activeWindow()) {
    return active;
  }
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) {
      return window;
    }
  }
  return nullptr;
}

QWidget* VisibleWidget(std::string_view name) {
  QWidget* const window = WindowInFront();
  if (window == nullptr) {
    return nullptr;
  }
  for (QWidget* widget : window->findChildren<QWidget*>(Text(name))) {
    if (widget->isVisible()) {
      return widget;
    }
  }
  return nullptr;
}

QLineEdit* VisibleField(std::string_view name) {
  const QWidget* const window = WindowInFront();
  if (window == nullptr) {
    return nullptr;
  }
  for (QLineEdit* field : window->findChildren<QLineEdit*>(Text(name))) {
    if (field->isVisible()) {
      return field;
    }
  }
  return nullptr;
}

QWidget* VisibleWidget(int number) {
  QWidget* const window = WindowInFront();
  if (window == nullptr) {
    return nullptr;
  }
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const QVariant property = widget->property(kNumberProperty);
    if (widget->isVisible() && property.isValid() && property.toInt() == number) {
      return widget;
    }
  }
  return nullptr;
}

Script& Script::Add(std::string what, std::function<bool()> ready, std::function<void()> act) {
  steps_.push_back({std::move(what), std::move(ready), std::move(act)});
  return *this;
}

Script& Script::Click(std::string_view name) {
  const std::string wanted(name);
  return Add(
      "click " + wanted, [wanted] { return VisibleWidget(wanted) != nullptr; },
      [wanted] {
        QWidget* const button = VisibleWidget(wanted);
        // A box or radio button is hit at its mark, not in the middle of its row.
        const QPoint mark(button->height() / 2, button->height() / 2);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, mark);
      });
}

Script& Script::ClickNumber(int number) {
  return Add(
      "click number " + std::to_string(number),
      [number] { return VisibleWidget(number) != nullptr; },
      [number] {
        QWidget* const button = VisibleWidget(number);
        const QPoint mark(button->height() / 2, button->height() / 2);
        QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, mark);
      });
}

Script& Script::Type(std::string_view name, const QString& text) {
  const std::string wanted(name);
  return Add(
      "type into " + wanted, [wanted] { return VisibleField(wanted) != nullptr; },
      [wanted, text] {
        QLineEdit* const field = VisibleField(wanted);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        TypeKeys(field, text);
      });
}

Script& Script::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  return Add(
      "press key " + std::to_string(key), [] { return HasKeyboard(); },
      [key, modifiers] { QTest::keyClick(KeyboardWidget(), key, modifiers); });
}

Script& Script::TypeHere(const QString& text) {
  return Add(
      "type " + Bytes(text), [] { return HasKeyboard(); },
      [text] { TypeKeys(KeyboardWidget(), text); });
}

Script& Script::Await(std::string_view screen) {
  const std::string wanted(screen);
  return Add(
      "await " + wanted,
      [this, wanted] {
        const QWidget* const window = WindowInFront();
        const bool is_in_front = window != nullptr && Shows(*window, wanted);
        if (!is_in_front && idle_ticks_ > kPatientTicks &&
            QApplication::activeModalWidget() == nullptr) {
          BringToFront(wanted);
        }
        return is_in_front;
      },
      [] {});
}

Script& Script::Answer(std::string_view answer) {
  const std::string caption(answer);
  return Add(
      "answer a message with " + caption,
      [caption] {
        QMessageBox* const box = MessageInFront();
        return box != nullptr && ButtonOf(*box, caption) != nullptr;
      },
      [this, caption] {
        QMessageBox* const box = MessageInFront();
        messages_.push_back(box->text());
        details_.push_back(box->detailedText());
        QTest::mouseClick(ButtonOf(*box, caption), Qt::LeftButton);
      });
}

Script& Script::CloseWindow() {
  return Add(
      "close the window", [] { return WindowInFront() != nullptr; },
      [] { WindowInFront()->close(); });
}

Script& Script::Until(std::function<bool()> condition, std::string what) {
  return Add(std::move(what), std::move(condition), [] {});
}

Script& Script::Drop(std::string_view name, const QString& path) {
  const std::string wanted(name);
  return Add(
      "drop a file onto " + wanted,
      [wanted] {
        const QWidget* const window = WindowInFront();
        return window != nullptr &&
               (window->objectName() == Text(wanted) || VisibleWidget(wanted) != nullptr);
      },
      [wanted, path] {
        QWidget* target = VisibleWidget(wanted);
        target = target != nullptr ? target : WindowInFront();
        // As in real life, what does not take files passes them on to what it lies in.
        while (!target->acceptDrops() && target->parentWidget() != nullptr) {
          target = target->parentWidget();
        }
        DropFile(*target, path);
      });
}

Script& Script::Do(std::function<void(QWidget&)> act) {
  Add(
      "do something", [] { return WindowInFront() != nullptr; },
      [act = std::move(act)] { act(*WindowInFront()); });
  steps_.back().opens_window = false;
  return *this;
}

void Script::Tick() {
  if (steps_.empty()) {
    return;
  }
  if (!steps_.front().ready()) {
    if (++idle_ticks_ < kMostIdleTicks) {
      QTimer::singleShot(kTick, &context_, [this] { Tick(); });
      return;
    }
    failed_ = true;
    const QWidget* const window = WindowInFront();
    qWarning("The script waits in vain to %s; in front is %s \"%s\"", steps_.front().what.c_str(),
             window != nullptr ? qPrintable(window->objectName()) : "nothing",
             MessageInFront() != nullptr ? qPrintable(MessageInFront()->text()) : "");
    steps_.clear();
    GiveUp();
    return;
  }
  idle_ticks_ = 0;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  const auto go_on = [this] { QTimer::singleShot(kTick, &context_, [this] { Tick(); }); };
  // What the step does may open a window that waits for the next step.
  if (step.opens_window) {
    go_on();
  }
  step.act();
  if (!step.opens_window) {
    go_on();
  }
}

/// Closes what waits for the user, one window after the other, so that the next test can run.
void Script::GiveUp() {
  QWidget* window = QApplication::activePopupWidget();
  window = window != nullptr ? window : QApplication::activeModalWidget();
  giving_up_ = window != nullptr;
  if (window == nullptr) {
    if (beginning_) {
      QApplication::quit();  // a whole program was started
    }
    return;
  }
  QTimer::singleShot(kTick, &context_, [this] { GiveUp(); });
  QMessageBox* const box = MessageInFront();
  if (QAbstractButton* const yes = box != nullptr ? ButtonOf(*box, "Yes") : nullptr) {
    yes->click();
  } else {
    window->close();
  }
}

bool Script::Run(const std::function<void()>& begin) {
  failed_ = false;
  QTimer::singleShot(kTick, &context_, [this] { Tick(); });
  beginning_ = true;
  begin();
  beginning_ = false;
  while (!steps_.empty() || giving_up_) {
    QTest::qWait(kTick);
  }
  QTest::qWait(2 * kTick);  // what the last step closed, closes
  return !failed_;
}

}  // namespace kaldo
