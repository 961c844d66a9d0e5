#include "run/window_console.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "looks/text_bridge.h"
#include "text/code_page.h"

namespace tarnwick::run {

using hosts::ConsolePage;

namespace {

constexpr int kEdge = 4;
/// Between two looks whether the program is to end, in milliseconds.
constexpr int kLookEvery = 50;
/// What a look for a key waits for one, so that a loop around it does not keep a processor busy.
constexpr int kKeyWait = 5;
constexpr auto kPaintEvery = std::chrono::milliseconds(50);

/// The colours of the console by their numbers.
constexpr QRgb kColors[] = {0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                            0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                            0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

QColor ColorOf(int number) {
  return {kColors[number & 15]};
}

}  // namespace

/// Shows a page and collects keys.
class WindowConsole::Window final : public QWidget {
 public:
  Window(const ConsolePage& page, std::string& keys, const QString& title)
      : page_(page), keys_(keys) {
    setObjectName(QStringLiteral("Console"));
    setWindowTitle(title);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(14);
    setFont(font);
    const QFontMetrics metrics(font);
    cell_ = {metrics.horizontalAdvance(QLatin1Char('M')), metrics.height()};
    setFixedSize(cell_.width() * ConsolePage::kColumns + 2 * kEdge,
                 cell_.height() * ConsolePage::kRows + 2 * kEdge);
  }

  std::function<void()> Pressed;
  std::function<void()> Closed;

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), ColorOf(0));
    for (int row = 1; row <= ConsolePage::kRows; ++row) PaintRow(painter, row);
    painter.fillRect(QRect(PlaceOf(page_.Row(), page_.Column()) + QPoint(0, cell_.height() - 2),
                           QSize(cell_.width(), 2)),
                     ColorOf(7));
  }
  void keyPressEvent(QKeyEvent* event) override {
    const std::string text = event->key() == Qt::Key_Enter
                                 ? std::string("\r")
                                 : Utf8ToCodePage(event->text().toStdString());
    if (text.empty()) return QWidget::keyPressEvent(event);
    keys_ += text;
    if (Pressed) Pressed();
  }
  void closeEvent(QCloseEvent* event) override {
    event->accept();
    if (Closed) Closed();
  }

 private:
  [[nodiscard]] QPoint PlaceOf(int row, int column) const {
    return {kEdge + (column - 1) * cell_.width(), kEdge + (row - 1) * cell_.height()};
  }
  void PaintRow(QPainter& painter, int row) {
    const std::int64_t start = std::int64_t{row - 1} * ConsolePage::kColumns;
    int first = 0;
    while (first < ConsolePage::kColumns) {
      const int color = page_.Peek(2 * (start + first) + 1);
      std::string text;
      int end = first;
      for (; end < ConsolePage::kColumns && page_.Peek(2 * (start + end) + 1) == color; ++end) {
        text += static_cast<char>(page_.Peek(2 * (start + end)));
      }
      const QRect place(PlaceOf(row, first + 1),
                        QSize((end - first) * cell_.width(), cell_.height()));
      painter.fillRect(place, ColorOf(color >> 4));
      painter.setPen(ColorOf(color));
      // Each in its own cell: fonts with letters of two widths would lose the columns.
      const QString letters = looks::ToQString(text);
      for (int i = 0; i < letters.size(); ++i) {
        if (letters[i] == QLatin1Char(' ')) continue;
        painter.drawText(QRect(place.topLeft() + QPoint(i * cell_.width(), 0), cell_),
                         Qt::AlignLeft | Qt::AlignVCenter, QString(letters[i]));
      }
      first = end;
    }
  }

  const ConsolePage& page_;
  std::string& keys_;
  QSize cell_;
};

WindowConsole::WindowConsole(QString title, std::FILE* out) : title_(std::move(title)), out_(out) {}

WindowConsole::~WindowConsole() = default;

WindowConsole::Window& WindowConsole::Open() {
  if (window_ == nullptr) {
    window_ = std::make_unique<Window>(Visible(), keys_, title_);
    window_->Closed = [this] {
      closed_ = true;
      if (Closed) Closed();
    };
    window_->show();
  }
  return *window_;
}

void WindowConsole::PageChanged() {
  if (window_ == nullptr) return;
  window_->update();
  const auto now = std::chrono::steady_clock::now();
  if (now - painted_ < kPaintEvery) return;
  painted_ = now;
  window_->repaint();
}

void WindowConsole::Send(std::string_view text) {
  const std::string utf8 = CodePageToUtf8(text);
  std::fwrite(utf8.data(), 1, utf8.size(), out_);
  // Who reads it shows it while the program runs.
  std::fflush(out_);
}

void WindowConsole::WaitClosed(const std::function<bool()>& ending) {
  if (window_ == nullptr || closed_) return;
  window_->setWindowTitle(title_ + QStringLiteral(" (ended)"));
  window_->update();
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    if (closed_ || ending()) loop.quit();
  });
  look.start(kLookEvery);
  loop.exec();
}

void WindowConsole::Printed(std::string_view text) {
  Send(text);
  if (ShowsText && !closed_) Open();
  PageChanged();
}

char WindowConsole::NextKey() {
  Window& window = Open();
  if (keys_.empty() && !closed_) {
    window.update();
    window.raise();
    window.activateWindow();
    QEventLoop loop;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
      if (closed_ || (Ending && Ending())) loop.quit();
    });
    look.start(kLookEvery);
    window.Pressed = [&loop] { loop.quit(); };
    loop.exec();
    window.Pressed = nullptr;
  }
  if (keys_.empty()) return 0;
  const char key = keys_.front();
  keys_.erase(0, 1);
  return key;
}

std::optional<std::string> WindowConsole::ReadLine() {
  std::string line;
  for (;;) {
    const char key = NextKey();
    if (key == 0) return std::nullopt;
    if (key == '\r' || key == '\n') break;
    ConsolePage& page = Visible();
    if (key == '\b') {
      if (line.empty()) continue;
      line.pop_back();
      const int back = page.Column() > 1 ? page.Column() - 1 : ConsolePage::kColumns;
      const int row = page.Column() > 1 ? page.Row() : page.Row() - 1;
      page.Locate(row, back);
      page.Write(" ");
      page.Locate(row, back);
    } else if (static_cast<unsigned char>(key) >= ' ') {
      line += key;
      page.Write(std::string_view(&key, 1));
    }
    window_->update();
  }
  Visible().Write("\n");
  Send(line + "\n");
  PageChanged();
  return line;
}

std::string WindowConsole::ReadBytes(std::size_t count) {
  std::string bytes;
  while (bytes.size() < count) {
    const char key = NextKey();
    if (key == 0) break;
    bytes += key;
  }
  return bytes;
}

std::string WindowConsole::Key() {
  Open();
  if (keys_.empty()) {
    QEventLoop loop;
    window_->Pressed = [&loop] { loop.quit(); };
    QTimer wait;
    QObject::connect(&wait, &QTimer::timeout, &loop, &QEventLoop::quit);
    wait.start(kKeyWait);
    loop.exec();
    window_->Pressed = nullptr;
  }
  if (keys_.empty()) return {};
  std::string key = keys_.substr(0, 1);
  keys_.erase(0, 1);
  return key;
}

void WindowConsole::Cleared() {
  PageChanged();
}

void WindowConsole::Located() {
  Open();
  PageChanged();
}

void WindowConsole::Colored(int /*text*/, int /*back*/) {
  Open();
}

void WindowConsole::Replaced() {
  Open();
  PageChanged();
}

void WindowConsole::Poked() {
  Replaced();
}

void WindowConsole::SetTitle(std::string_view title) {
  title_ = looks::ToQString(title);
  if (window_ != nullptr) window_->setWindowTitle(title_);
}

}  // namespace tarnwick::run
