#include "host/window/Shot.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

#include "host/UserLanguage.h"
#include "host/editor/WindowCommands.h"
#include "host/window/Display.h"
#include "host/window/SettingsWindow.h"
#include "host/window/Translation.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {
namespace {

QImage Picture(QWidget& view, const PictureSize& wanted) {
  const QSize size = wanted.width > 0
                         ? QSize(wanted.width, wanted.height)
                         : QSize(std::max(1, static_cast<int>(std::lround(view.width() * wanted.factor))),
                                 std::max(1, static_cast<int>(std::lround(view.height() * wanted.factor))));
  QImage image(size, QImage::Format_RGB32);
  image.fill(view.palette().color(QPalette::Window));
  const double factor = std::min(double(size.width()) / view.width(), double(size.height()) / view.height());
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, factor != 1);
  painter.translate((size.width() - view.width() * factor) / 2, (size.height() - view.height() * factor) / 2);
  painter.scale(factor, factor);
  view.render(&painter);
  return image;
}

}  // namespace

std::string Shot(const ShotOptions& options) {
  const ApplicationInMemory application;
  const Translation translation(UserLanguage());
  qt::QtPlatform platform;
  EditedSettings settings(options.settings, platform);
  settings.Control().GetDialog().TabStrip().UserPick(static_cast<std::int16_t>(options.page));
  std::unique_ptr<QWidget> drawn;
  if (options.window) {
    drawn = std::make_unique<SettingsWindow>(settings);
  } else {
    drawn = std::make_unique<qt::PrnPropView>(settings.Control().GetDialog());
  }
  if (options.window) {
    // The panel opens when the window has been painted once.
    drawn->setAttribute(Qt::WA_DontShowOnScreen);
    drawn->show();
    Picture(*drawn, options.size);
    QApplication::processEvents();
    QApplication::sendPostedEvents();
  }

  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  Picture(*drawn, options.size).save(&buffer, "PNG");
  return png.toStdString();
}

}  // namespace ORXKMPrintProp::host
