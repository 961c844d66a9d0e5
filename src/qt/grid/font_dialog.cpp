#include "qt/grid/font_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>
#include <cmath>

#include "looks/platform_colors.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kSwatch = 16;
constexpr int kSampleHeight = 72;
constexpr int kLargestSize = 400;

/// The dialog's fields; the choice is read from them when it closes.
class FontDialog final : public QDialog {
 public:
  FontDialog(const FontChoice& start, QWidget* parent) : QDialog(parent), color_(start.Color) {
    setWindowTitle(QStringLiteral("Font"));
    setObjectName(QStringLiteral("FontDialog"));
    name_->setCurrentText(ToQString(start.Name));
    KeepInCodePage(*name_->lineEdit());
    size_->setRange(1, kLargestSize);
    size_->setValue(static_cast<int>(std::lround(start.Size)));
    bold_->setChecked(start.Bold);
    italic_->setChecked(start.Italic);
    underline_->setChecked(start.Underline);
    strike_->setChecked(start.Strikethru);
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setFixedHeight(kSampleHeight);
    sample_->setAutoFillBackground(true);
    Build();
    connect(name_, &QComboBox::editTextChanged, this, [this] { ShowSample(); });
    connect(size_, &QSpinBox::valueChanged, this, [this] { ShowSample(); });
    for (const QCheckBox* box : {bold_, italic_, underline_, strike_}) {
      connect(box, &QCheckBox::toggled, this, [this] { ShowSample(); });
    }
    connect(pick_, &QPushButton::clicked, this, [this] { PickColor(); });
    ShowSample();
  }

  [[nodiscard]] FontChoice Choice() const {
    return {FromQString(name_->currentText()),
            static_cast<float>(size_->value()),
            bold_->isChecked(),
            italic_->isChecked(),
            underline_->isChecked(),
            strike_->isChecked(),
            color_};
  }

 private:
  void Build() {
    auto* styles = new QHBoxLayout;
    for (QCheckBox* box : {bold_, italic_, underline_, strike_}) styles->addWidget(box);
    styles->addStretch();
    auto* form = new QFormLayout;
    form->setSpacing(kRoom);
    form->addRow(QStringLiteral("&Name"), name_);
    form->addRow(QStringLiteral("&Size"), size_);
    form->addRow(QString(), styles);
    form->addRow(QStringLiteral("&Colour"), pick_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * kRoom, 2 * kRoom, 2 * kRoom, 2 * kRoom);
    column->setSpacing(2 * kRoom);
    column->addLayout(form);
    column->addWidget(sample_);
    column->addWidget(buttons);
  }

  void ShowSample() {
    QFont font(name_->currentText());
    font.setPixelSize(size_->value() * 96 / 72 + 1);
    font.setBold(bold_->isChecked());
    font.setItalic(italic_->isChecked());
    font.setUnderline(underline_->isChecked());
    font.setStrikeOut(strike_->isChecked());
    sample_->setFont(font);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, looks::ColorOf(color_));
    sample_->setPalette(palette);
    QPixmap swatch(kSwatch, kSwatch);
    swatch.fill(looks::ColorOf(color_));
    pick_->setIcon(swatch);
  }

  void PickColor() {
    const QColor color =
        QColorDialog::getColor(looks::ColorOf(color_), this, QStringLiteral("Colour"));
    if (color.isValid()) color_ = looks::NumberOf(color);
    ShowSample();
  }

  std::int32_t color_;
  QFontComboBox* name_ = new QFontComboBox(this);
  QSpinBox* size_ = new QSpinBox(this);
  QCheckBox* bold_ = new QCheckBox(QStringLiteral("&Bold"), this);
  QCheckBox* italic_ = new QCheckBox(QStringLiteral("&Italic"), this);
  QCheckBox* underline_ = new QCheckBox(QStringLiteral("&Underline"), this);
  QCheckBox* strike_ = new QCheckBox(QStringLiteral("S&trike-out"), this);
  QPushButton* pick_ = new QPushButton(QStringLiteral("Choose..."), this);
  QLabel* sample_ = new QLabel(QStringLiteral("AaBbCc 0123"), this);
};

}  // namespace

std::optional<FontChoice> RunFontDialog(const FontChoice& start, QWidget* parent) {
  FontDialog dialog(start, parent);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.Choice();
}

}  // namespace tarnwick
