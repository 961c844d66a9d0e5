#include "run/views/other_views.h"

#include <QDesktopServices>
#include <QTextBrowser>
#include <QUrl>
#include <algorithm>

#include "looks/classic_look.h"
#include "looks/text_bridge.h"
#include "platform/native_path.h"
#include "run/stage.h"

namespace tarnwick::run {

TimerView::TimerView(Stage& stage, const ObjectRecord& timer) : ObjectView(stage, timer) {
  connect(&timer_, &QTimer::timeout, this, [this] {
    // While windows only repaint no time passes for the program.
    if (!this->stage().Quiet() && !this->stage().Ending()) this->stage().World().Tick(Id());
  });
}

void TimerView::Apply(const ObjectRecord& timer, Word property) {
  if (property != Word::Interval && property != Word::Enabled) return;
  constexpr std::int64_t kLongest = 0x7FFFFFFF;
  const std::int64_t interval = timer.Number(Word::Interval);
  if (timer.Truth(Word::Enabled) && interval > 0) {
    timer_.start(static_cast<int>(std::min(interval, kLongest)));
  } else {
    timer_.stop();
  }
}

GlassView::GlassView(Stage& stage, const ObjectRecord& frame)
    : TableView(stage, frame, new QWidget, WidgetEvents::Mouse::Plain) {
  Widget()->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void GlassView::ShowGlass(const ObjectRecord& frame) {
  constexpr double kOpaque = 255;
  const ObjectView* const form = stage().FormViewOf(frame.Id);
  if (form == nullptr || form->Widget() == nullptr) return;
  const double clear = static_cast<double>(frame.Number(Word::Transparency)) / kOpaque;
  // Never so clear that the window cannot be found.
  form->Widget()->setWindowOpacity(std::clamp(1.0 - clear, 0.2, 1.0));
}

PageView::PageView(Stage& stage, const ObjectRecord& viewer)
    : TableView(stage, viewer, new QTextBrowser, WidgetEvents::Mouse::Own) {
  Events().Watch(Browser(), *Browser().viewport());
  Browser().setOpenLinks(false);
  connect(&Browser(), &QTextBrowser::anchorClicked, this,
          [this](const QUrl& link) { Navigate(looks::FromQString(link.toString())); });
}

QTextBrowser& PageView::Browser() const {
  return *static_cast<QTextBrowser*>(Widget());
}

void PageView::ShowPage(const ObjectRecord& /*viewer*/) {
  Widget()->update();
}

void PageView::Navigate(std::string_view address) {
  constexpr std::string_view kAbout = "about:";
  address_ = address;
  if (address.starts_with(kAbout)) {
    Browser().setHtml(looks::ToQString(address.substr(kAbout.size())));
    return;
  }
  const auto file = FindNative(std::string(address));
  if (file) {
    Browser().setSource(QUrl::fromLocalFile(QString::fromStdString(*file)));
    return;
  }
  // Pages of the net belong to the desktop's browser.
  const QUrl url = QUrl::fromUserInput(looks::ToQString(address));
  const QString shown = url.toString().toHtmlEscaped();
  Browser().setHtml(
      QStringLiteral("<p>Opened in the browser: <a href=\"%1\">%1</a></p>").arg(shown));
  if (url.isValid() && !url.isLocalFile()) QDesktopServices::openUrl(url);
}

bool PageView::Invoke(const ObjectRecord& viewer, const MemberInfo& method,
                      std::span<Value> arguments, Value& result) {
  switch (method.Name) {
    case Word::Navigate:
      if (!arguments.empty()) Navigate(arguments[0].AsText());
      return true;
    case Word::LoadFromFile:
      if (!arguments.empty()) Navigate(arguments[0].AsText());
      return true;
    case Word::GoBack:
      Browser().backward();
      return true;
    case Word::GoForward:
      Browser().forward();
      return true;
    case Word::Refresh:
      Navigate(std::string(address_));
      return true;
    case Word::GoHome:
    case Word::Close:
    case Word::DestroyObject:
      Navigate("about:");
      return true;
    default:
      return WidgetView::Invoke(viewer, method, arguments, result);
  }
}

bool PageView::Live(const ObjectRecord& /*viewer*/, const MemberInfo& member,
                    std::span<const Value> /*index*/, Value& out) {
  if (member.Name == Word::LocationURL) {
    out = Value::Text(address_);
    return true;
  }
  if (member.Name == Word::LocationName) {
    out = Value::Text(looks::FromQString(Browser().documentTitle()));
    return true;
  }
  return false;
}

}  // namespace tarnwick::run
