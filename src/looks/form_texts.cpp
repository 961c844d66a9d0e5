#include "looks/form_texts.h"

#include <QTextOption>
#include <QTransform>
#include <algorithm>
#include <cmath>

#include "looks/text_bridge.h"

namespace tarnwick::looks {

namespace {

constexpr std::size_t kMostTexts = 8192;

void AppendNumber(std::string& key, std::uint32_t number) {
  for (int shift = 0; shift < 32; shift += 8) {
    key.push_back(static_cast<char>((number >> static_cast<unsigned>(shift)) & 0xFFU));
  }
}

/// Takes the marks of access keys out of a caption; returns the position of the key, or -1.
qsizetype TakeAccessKey(QString& text) {
  if (!text.contains(u'&')) return -1;
  QString shown;
  shown.reserve(text.size());
  qsizetype place = -1;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text.at(i) == u'&') {
      if (++i >= text.size()) break;
      if (text.at(i) != u'&') place = shown.size();
    }
    shown.append(text.at(i));
  }
  text = std::move(shown);
  return place;
}

}  // namespace

const LaidText& FormTexts::Lay(std::string_view text, const FormFont& font, TextFlow flow,
                               int width) {
  const bool wraps = flow == TextFlow::Wrapped || flow == TextFlow::Block;
  key_.clear();
  AppendNumber(key_, static_cast<std::uint32_t>(font.Id));
  AppendNumber(key_, wraps ? static_cast<std::uint32_t>(width) : 0);
  key_.push_back(static_cast<char>(flow));
  key_.append(text);
  if (const auto found = texts_.find(key_); found != texts_.end()) return found->second;
  if (texts_.size() >= kMostTexts) texts_.clear();

  LaidText laid;
  QString shown = ToQString(text);
  const bool has_key = flow == TextFlow::Line || flow == TextFlow::Wrapped;
  const qsizetype access = has_key ? TakeAccessKey(shown) : -1;
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  if (access >= 0 && flow == TextFlow::Line) {
    laid.KeyLeft = font.Metrics.horizontalAdvance(shown.left(access));
    laid.KeyWidth = font.Metrics.horizontalAdvance(shown.at(access));
    laid.KeyTop = font.Metrics.ascent() + 1;
  }
  laid.Text.setTextFormat(Qt::PlainText);
  laid.Text.setPerformanceHint(QStaticText::AggressiveCaching);
  QTextOption option;
  option.setWrapMode(wraps ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
  laid.Text.setTextOption(option);
  if (wraps) laid.Text.setTextWidth(std::max(width, 1));
  laid.Text.setText(wraps ? shown : shown.replace(u'\n', u' '));
  laid.Text.prepare(QTransform(), font.Font);
  const QSizeF size = laid.Text.size();
  laid.Width = static_cast<int>(std::ceil(size.width()));
  laid.Height = static_cast<int>(std::ceil(size.height()));
  return texts_.emplace(key_, std::move(laid)).first->second;
}

}  // namespace tarnwick::looks
