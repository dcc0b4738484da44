// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/guide.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

/// Where the guide tells of a screen, by the object name of the screen.
struct GuidePlace {
  std::string_view screen;
  std::string_view heading;
};

constexpr std::array kPlaces = {
    GuidePlace{"qt_msgbox_label", "When something is wrong with a file"},
    GuidePlace{kIntroductionScreen.object_name, "Starting"},
    GuidePlace{kMainMenuScreen.object_name, "Starting"},
    GuidePlace{kNonSexedAllocationScreen.object_name, "Files"},
    GuidePlace{kSexedAllocationScreen.object_name, "Files"},
    GuidePlace{kErrorScreen.object_name, "Model of error"},
    GuidePlace{kLociScreen.object_name, "Choice of loci"},
    GuidePlace{kSequenceScreen.object_name, "Choice of loci"},
    GuidePlace{"RunDialog", "Choice of loci"},
    GuidePlace{kNonSexedSimulationScreen.object_name, "Procedure"},
    GuidePlace{kSexedSimulationScreen.object_name, "Procedure"},
    GuidePlace{kParentalScreen.object_name, "Parents"},
    GuidePlace{kOffspringScreen.object_name, "Pseudo-offspring"},
    GuidePlace{kToleranceScreen.object_name, "Tolerance"},
    GuidePlace{kStrategyScreen.object_name, "Strategy"},
    GuidePlace{kOutputScreen.object_name, "Output"},
    GuidePlace{"MatingsTable", "Who had offspring with whom"},
    GuidePlace{"RunComparison", "Two runs compared"},
    GuidePlace{"AllocationResults", "Reading the results of an allocation"},
    GuidePlace{"SimulationResults", "Reading the results of a simulation"},
};

/// The heading for what a window shows: that of a screen in it before that of the window.
QString HeadingFor(const QWidget& window) {
  const auto heading_of = [](const QWidget& widget) -> std::optional<QString> {
    const auto* const place =
        std::find_if(kPlaces.begin(), kPlaces.end(), [&](const GuidePlace& known) {
          return widget.isVisible() && widget.objectName() == Text(known.screen);
        });
    return place == kPlaces.end() ? std::nullopt : std::optional(Text(place->heading));
  };
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (const auto heading = widget->window() == &window ? heading_of(*widget) : std::nullopt) {
      return *heading;
    }
  }
  return heading_of(window).value_or(QString());
}

/// The guide without its pictures: the screens are there.
QString GuideText() {
  QFile file(Text(":/user-guide.md"));
  (void)file.open(QIODevice::ReadOnly);
  static const QRegularExpression picture(Text("!\\[[^\\]]*\\]\\([^)]*\\)\n*"));
  return QString::fromUtf8(file.readAll()).remove(picture);
}

void ScrollTo(QTextBrowser& text, const QString& heading) {
  for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0 && block.text() == heading) {
      const QRectF place = text.document()->documentLayout()->blockBoundingRect(block);
      text.setTextCursor(QTextCursor(block));
      text.verticalScrollBar()->setValue(static_cast<int>(place.top()));
      return;
    }
  }
}

/// A link of the table of contents: "#model-of-error".
void FollowLink(QTextBrowser& text, const QString& fragment) {
  for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
    QString name = block.text().toLower().remove(QLatin1Char(','));
    if (name.replace(QLatin1Char(' '), QLatin1Char('-')) == fragment) {
      ScrollTo(text, block.text());
    }
  }
}

}  // namespace

void ShowGuide(QWidget& window) {
  auto* guide = new QDialog(&window);
  guide->setAttribute(Qt::WA_DeleteOnClose);
  guide->setObjectName(Text("Guide"));
  guide->setWindowTitle(Tr("User guide"));
  auto* const text = new QTextBrowser;
  text->setObjectName(Text("GuideText"));
  text->setAccessibleName(Tr("User guide"));
  text->setOpenLinks(false);
  text->setMarkdown(GuideText());
  QObject::connect(text, &QTextBrowser::anchorClicked, text,
                   [text](const QUrl& link) { FollowLink(*text, link.fragment()); });
  auto* const column = new QVBoxLayout(guide);
  column->addWidget(text);
  const QFontMetrics metrics = guide->fontMetrics();
  guide->resize(metrics.averageCharWidth() * 90, metrics.lineSpacing() * 36);
  guide->show();
  ScrollTo(*text, HeadingFor(window));
}

GuideKey::GuideKey(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

bool GuideKey::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
    return false;
  }
  const auto* const key = static_cast<const QKeyEvent*>(event);
  QWidget* const window = QApplication::activeWindow();
  if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier || window == nullptr ||
      window->objectName() == Text("Guide")) {
    return false;
  }
  ShowGuide(*window);
  return true;
}

}  // namespace kaldo
