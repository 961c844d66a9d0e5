#include "qt/frame/name_labels.h"

#include <QLabel>

#include "qt/kit/icon_set.h"
#include "qt/kit/text_bridge.h"
#include "shell/titles.h"

namespace tarnwick {

namespace {

constexpr int kPicture = 64;

}  // namespace

QLabel* MakePictureLabel(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setFixedSize(kPicture, kPicture);
  // Asked for with the screen's factor, so that the picture has all the pixels it is shown with.
  label->setPixmap(ProgramIcon().pixmap(QSize(kPicture, kPicture), label->devicePixelRatioF()));
  return label;
}

QLabel* MakeNameLabel(double scale, QWidget* parent) {
  auto* label = new QLabel(ToQString(kApplicationTitle), parent);
  QFont large = label->font();
  large.setPointSizeF(large.pointSizeF() * scale);
  large.setWeight(QFont::DemiBold);
  label->setFont(large);
  return label;
}

}  // namespace tarnwick
