#include "qt/frame/help_window.h"

#include <QDesktopServices>
#include <QFile>
#include <QKeyEvent>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QUrl>
#include <QVBoxLayout>

#include "objects/supported_list.h"
#include "qt/kit/above_modal.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "qt/kit/window_place.h"

// The pages lie in a static library, whose resources register themselves only when asked to; the
// asking has to stand outside of any namespace.
static void RegisterPages() {
  Q_INIT_RESOURCE(pages);
}

namespace tarnwick {

namespace {

constexpr QSize kStartSize(760, 600);

/// A page as Markdown.
QString MarkdownOf(HelpPage page) {
  if (page == HelpPage::Supported) return ToQString(objects::SupportedPage());
  static const bool registered = (RegisterPages(), true);
  Q_UNUSED(registered)
  QFile file(QStringLiteral(":/pages/") + ToQString(RowOf(page).File));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Tables as Markdown gives them are crammed: room around them and in their cells.
void GiveTablesRoom(QTextDocument& page) {
  for (QTextFrame* const frame : page.rootFrame()->childFrames()) {
    auto* const table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(kGap);
    format.setTopMargin(kRoom);
    format.setBottomMargin(kRoom);
    table->setFormat(format);
  }
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window), home_(parent), text_(new QTextBrowser) {
  setObjectName(QStringLiteral("HelpWindow"));
  resize(kStartSize);
  text_->setObjectName(QStringLiteral("HelpText"));
  text_->setAccessibleName(QStringLiteral("Help"));
  text_->document()->setDocumentMargin(2 * kRoom);
  // Which page a link means is known here.
  text_->setOpenLinks(false);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(text_);
  setFocusProxy(text_);
  // The text itself would go back in a history of its own, which is empty.
  auto* const back = new QShortcut(QKeySequence::Back, this);
  connect(back, &QShortcut::activated, this, &HelpWindow::GoBack);
  connect(text_, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    const auto page = HelpPageOf(std::string_view(FromQString(link.path())));
    if (link.isRelative() && page) {
      before_.prepend(page_);
      Show(*page);
    } else if (!link.isRelative()) {
      QDesktopServices::openUrl(link);
    }
  });
}

void HelpWindow::OpenPage(HelpPage page) {
  before_.clear();
  Show(page);
  PlaceOverParent(*this);
  LetWorkAboveModal(*this, *home_);
  show();
  raise();
  activateWindow();
  text_->setFocus();
}

void HelpWindow::Show(HelpPage page) {
  page_ = page;
  setWindowTitle(ToQString(RowOf(page).Title));
  text_->setMarkdown(MarkdownOf(page));
  GiveTablesRoom(*text_->document());
}

void HelpWindow::GoBack() {
  if (!before_.isEmpty()) Show(before_.takeFirst());
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace tarnwick
