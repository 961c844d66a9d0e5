// The icon display: the icon of the program that is being made.
#pragma once

#include <QWidget>
#include <string_view>

#include "looks/picture_cache.h"

class QLabel;

namespace tarnwick {

/// Shows the picture and the path of the program's icon, or "(Default)".
class IconDisplay final : public QWidget {
  Q_OBJECT

 public:
  IconDisplay(looks::PictureCache& pictures, QWidget* parent);

  void Show(std::string_view text, std::string_view picture);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Elide();

  looks::PictureCache& pictures_;
  QLabel* picture_;
  QLabel* text_;
  QString full_;
};

}  // namespace tarnwick
