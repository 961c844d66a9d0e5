#include "qt/grid/font_dialog.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "looks/platform_colors.h"
#include "qt/kit/color_dialog.h"
#include "qt/kit/text_bridge.h"
#include "qt/kit/theme.h"

namespace tarnwick {

namespace {

constexpr int kSwatch = 16;
constexpr int kSampleHeight = 72;
constexpr int kLargestSize = 400;
constexpr int kSizeDecimals = 3;
constexpr int kSizeDigits = 6;

/// Points with their fraction, "8.25". Point and comma both stand before it.
class SizeBox final : public QDoubleSpinBox {
 public:
  explicit SizeBox(QWidget* parent) : QDoubleSpinBox(parent) {
    setLocale(QLocale::c());
    setDecimals(kSizeDecimals);
    setRange(1, kLargestSize);
  }

 protected:
  [[nodiscard]] QString textFromValue(double value) const override {
    return QString::number(value, 'g', kSizeDigits);
  }
  [[nodiscard]] double valueFromText(const QString& text) const override {
    return QDoubleSpinBox::valueFromText(WithPoint(text));
  }
  QValidator::State validate(QString& text, int& position) const override {
    text = WithPoint(text);
    return QDoubleSpinBox::validate(text, position);
  }

 private:
  static QString WithPoint(QString text) { return text.replace(u',', u'.'); }
};

/// The dialog's fields; the choice is read from them when it closes.
class FontDialog final : public QDialog {
 public:
  FontDialog(const FontChoice& start, QWidget* parent)
      : QDialog(parent), start_size_(start.Size), color_(start.Color) {
    setWindowTitle(QStringLiteral("Font"));
    setObjectName(QStringLiteral("FontDialog"));
    name_->setCurrentText(ToQString(start.Name));
    KeepInCodePage(*name_->lineEdit());
    size_->setValue(start.Size);
    shown_size_ = size_->value();
    bold_->setChecked(start.Bold);
    italic_->setChecked(start.Italic);
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setFixedHeight(kSampleHeight);
    sample_->setAutoFillBackground(true);
    Build();
    connect(name_, &QComboBox::editTextChanged, this, [this] { ShowSample(); });
    connect(size_, &QDoubleSpinBox::valueChanged, this, [this] { ShowSample(); });
    for (const QCheckBox* box : {bold_, italic_}) {
      connect(box, &QCheckBox::toggled, this, [this] { ShowSample(); });
    }
    connect(pick_, &QPushButton::clicked, this, [this] { PickColor(); });
    ShowSample();
  }

  [[nodiscard]] FontChoice Choice() const {
    return {FromQString(name_->currentText()),
            size_->value() == shown_size_ ? start_size_ : static_cast<float>(size_->value()),
            bold_->isChecked(), italic_->isChecked(), color_};
  }

 private:
  void Build() {
    auto* styles = new QHBoxLayout;
    for (QCheckBox* box : {bold_, italic_}) styles->addWidget(box);
    styles->addStretch();
    auto* form = new QFormLayout;
    form->setSpacing(kRoom);
    form->addRow(QStringLiteral("&Name"), name_);
    form->addRow(QStringLiteral("&Size"), size_);
    form->addRow(QString(), styles);
    form->addRow(QStringLiteral("&Colour"), pick_);
    pick_->setAccessibleName(QStringLiteral("Colour"));
    pick_->setToolTip(QStringLiteral("Choose the colour of the text"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setToolTip(QStringLiteral("Take the font (Enter)"));
    buttons->button(QDialogButtonBox::Cancel)
        ->setToolTip(QStringLiteral("Leave the font as it was (Esc)"));
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
    font.setPixelSize(qRound(size_->value() * 96 / 72) + 1);
    font.setBold(bold_->isChecked());
    font.setItalic(italic_->isChecked());
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
    color_ = RunColorDialog(color_, this).value_or(color_);
    ShowSample();
  }

  float start_size_;
  double shown_size_ = 0;  ///< the start's, as the field rounds it
  std::int32_t color_;
  QFontComboBox* name_ = new QFontComboBox(this);
  SizeBox* size_ = new SizeBox(this);
  QCheckBox* bold_ = new QCheckBox(QStringLiteral("&Bold"), this);
  QCheckBox* italic_ = new QCheckBox(QStringLiteral("&Italic"), this);
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
