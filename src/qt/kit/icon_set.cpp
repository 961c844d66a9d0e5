#include "qt/kit/icon_set.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QtGlobal>
#include <array>

#include "designer/tool_box.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"
#include "text/enum_table.h"

// The pictures lie in a static library, whose resources register themselves only when asked to; the
// asking has to stand outside of any namespace.
static void RegisterIcons() {
  Q_INIT_RESOURCE(icons);
}

namespace tarnwick {

namespace {

constexpr qreal kPaleOpacity = 0.38;

QString FileOf(const QString& name) {
  static const bool registered = (RegisterIcons(), true);
  Q_UNUSED(registered)
  return QStringLiteral(":/icons/") + name + QStringLiteral(".svg");
}

/// A picture's source with its three colour words replaced.
QByteArray Tinted(const QString& name, const IconColors& colors) {
  QFile file(FileOf(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QByteArray text = file.readAll();
  text.replace("currentColor", colors.Ink.name().toLatin1());
  text.replace("AccentColor", colors.Accent.name().toLatin1());
  text.replace("Canvas", colors.Paper.name().toLatin1());
  return text;
}

QPixmap Drawn(const QString& name, const QSize& pixels, const IconColors& colors, bool pale) {
  const QString key = QStringLiteral("tarnwick/%1/%2/%3/%4/%5/%6/%7")
                          .arg(name)
                          .arg(pixels.width())
                          .arg(pixels.height())
                          .arg(colors.Ink.rgba())
                          .arg(colors.Accent.rgba())
                          .arg(colors.Paper.rgba())
                          .arg(pale);
  QPixmap pixmap;
  if (QPixmapCache::find(key, &pixmap)) return pixmap;
  pixmap = QPixmap(pixels);
  pixmap.fill(Qt::transparent);
  QSvgRenderer renderer(Tinted(name, colors));
  QPainter painter(&pixmap);
  if (pale) painter.setOpacity(kPaleOpacity);
  const int side = qMin(pixels.width(), pixels.height());
  // On whole pixels, so that its lines stay sharp.
  const QRect square((pixels.width() - side) / 2, (pixels.height() - side) / 2, side, side);
  renderer.render(&painter, square);
  painter.end();
  QPixmapCache::insert(key, pixmap);
  return pixmap;
}

IconColors ColorsOf(const QPalette& palette) {
  return {palette.color(QPalette::Active, QPalette::WindowText), AccentOf(palette),
          palette.color(QPalette::Active, QPalette::Base)};
}

/// Draws from the source at each size asked for, so that the picture follows palette and scale.
class SvgIconEngine final : public QIconEngine {
 public:
  explicit SvgIconEngine(QString name) : name_(std::move(name)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    const QSize pixels = (QSizeF(rect.size()) * ratio).toSize();
    painter->drawPixmap(rect, pixmap(pixels, mode, state));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    return Drawn(name_, size, ColorsOf(QApplication::palette()), mode == QIcon::Disabled);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new SvgIconEngine(name_); }
  bool isNull() override { return false; }

 private:
  QString name_;
};

struct CommandIcon {
  Command Id;
  const char* Name;
};

/// Pictures of the commands, by enumerator.
constexpr std::array<CommandIcon, kCommandCount> kCommandIcons{{
    {Command::New, "new"},
    {Command::Open, "open"},
    {Command::OpenOld, "open"},
    {Command::Save, "save"},
    {Command::SaveAs, "save"},
    {Command::SaveForm, "save"},
    {Command::SaveFormAs, "save"},
    {Command::Exit, "exit"},
    {Command::Restore, "open"},
    {Command::Undo, "undo"},
    {Command::Redo, "redo"},
    {Command::Cut, "cut"},
    {Command::Copy, "copy"},
    {Command::Paste, "paste"},
    {Command::Delete, "delete"},
    {Command::BringToFront, "front"},
    {Command::StayBack, "back"},
    {Command::AlignToGrid, "grid"},
    {Command::Lock, "lock"},
    {Command::Code, "code"},
    {Command::PublicDeclarations, "declarations"},
    {Command::Properties, "properties"},
    {Command::Forms, "form"},
    {Command::EventsBar, "events-bar"},
    {Command::ObjectBar, "object-bar"},
    {Command::Examiner, "examiner"},
    {Command::AddNewForm, "add-form"},
    {Command::Remove, "remove-form"},
    {Command::SelectMainForm, "main-form"},
    {Command::MenuEdit, "menu-edit"},
    {Command::Compile, "compile"},
    {Command::Stop, "stop"},
    {Command::RunWithEither, "compile"},
    {Command::RunWithCompiler, "compile"},
    {Command::RunWithRunner, "compile"},
    {Command::Check, "check"},
    {Command::Output, "code"},
    {Command::Help, "help"},
    {Command::HelpRunning, "help"},
    {Command::HelpChoices, "help"},
    {Command::HelpSupported, "help"},
    {Command::About, "about"},
}};
static_assert(HasRowOfEach(kCommandIcons, kCommandCount));

}  // namespace

QIcon IconOf(const QString& name) {
  if (!QFile::exists(FileOf(name))) return {};
  return QIcon(new SvgIconEngine(name));
}

QPixmap PixmapOf(const QString& name, int size, qreal ratio, const IconColors& colors) {
  const int pixels = qRound(size * ratio);
  QPixmap pixmap = Drawn(name, QSize(pixels, pixels), colors, false);
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

QString IconNameOf(Command command) {
  return QString::fromLatin1(kCommandIcons[static_cast<std::size_t>(command)].Name);
}

QString IconNameOfTool(int number) {
  if (number == kArrowTool) return QStringLiteral("kind-cursor");
  if (number == kFormTool) return QStringLiteral("kind-form");
  if (number == kMenuTool) return QStringLiteral("kind-menu");
  const ToolInfo* tool = ToolOf(number);
  if (tool == nullptr) return {};
  const auto kind = KindOfFileWord(tool->Objeto);
  return kind ? IconNameOf(*kind) : QString();
}

QString IconNameOf(Kind kind) {
  return QStringLiteral("kind-") + ToQString(InfoOf(kind).Tag);
}

QIcon ProgramIcon() {
  return QIcon(new SvgIconEngine(QStringLiteral("tarnwick")));
}

}  // namespace tarnwick
