// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/base/elided_label.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QStyle>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr int kNarrowest = 24;  ///< in characters, as the next
constexpr int kUsual = 48;      ///< whatever the path: the window has one size for all of them

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setFocusPolicy(Qt::ClickFocus);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  auto* const copy = new QAction(Tr("&Copy the folder"), this);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, this,
          [this] { QGuiApplication::clipboard()->setText(copied_); });
  addAction(copy);
}

void ElidedLabel::SetText(const QString& text, const QString& copied) {
  copied_ = copied;
  setText(text);
  setToolTip(TipText(text));
}

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kNarrowest, sizeHint().height()};
}

QSize ElidedLabel::sizeHint() const {
  const auto lines = static_cast<int>(text().count(QLatin1Char('\n'))) + 1;
  return {fontMetrics().averageCharWidth() * kUsual,
          fontMetrics().lineSpacing() * lines + 2 * margin()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/) {
  QStringList lines = text().split(QLatin1Char('\n'));
  for (QString& line : lines) {
    line = fontMetrics().elidedText(line, Qt::ElideMiddle, contentsRect().width());
  }
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), lines.join(QLatin1Char('\n')), foregroundRole());
}

}  // namespace kaldo
