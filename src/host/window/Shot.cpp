#include "host/window/Shot.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <memory>
#include <ostream>

#include "host/Files.h"
#include "host/editor/EditedSettings.h"
#include "host/window/Display.h"
#include "host/window/SettingsWindow.h"
#include "views/qt/PrnPropView.h"
#include "views/qt/QtPlatform.h"

namespace ORXKMPrintProp::host {
namespace {

constexpr int kMostPixels = 16000;
constexpr double kMostFactor = 16;

/// The number that is the whole text.
template <class Number>
std::optional<Number> NumberIn(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

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

std::optional<PictureSize> ParsePictureSize(const std::string& text) {
  if (const auto cross = text.find('x'); cross != std::string::npos) {
    const auto width = NumberIn<int>(std::string_view(text).substr(0, cross));
    const auto height = NumberIn<int>(std::string_view(text).substr(cross + 1));
    if (!width || !height || *width < 1 || *height < 1 || *width > kMostPixels || *height > kMostPixels) return {};
    return PictureSize{.width = *width, .height = *height};
  }
  const auto factor = NumberIn<double>(text);
  if (!factor || !(*factor > 0 && *factor <= kMostFactor)) return {};
  return PictureSize{.factor = *factor};
}

void Shot(const ShotOptions& options, std::ostream& out) {
  SettingsDocument document = ReadSettings(options.file);
  const MemoryTableRef texts = options.texts ? ReadSettings(*options.texts).texts : document.texts;

  DrawInMemory();
  TakeQtMessages(false);
  int argc = 1;
  char name[] = "prnprop";
  char* argv[] = {name, nullptr};
  QApplication application(argc, argv);
  qt::QtPlatform platform;
  const EditOptions edited{.file = options.file, .texts = {}, .out = {}, .readOnly = options.readOnly};
  EditedSettings settings(std::move(document), edited, texts, platform);
  std::unique_ptr<QWidget> drawn;
  if (options.window) {
    drawn = std::make_unique<SettingsWindow>(settings);
  } else {
    drawn = std::make_unique<qt::PrnPropView>(settings.Control().GetDialog());
  }
  settings.Control().GetDialog().TabStrip().UserPick(static_cast<std::int16_t>(options.page));
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
  const std::string_view bytes(png.constData(), static_cast<std::size_t>(png.size()));
  if (options.out == kStandardStream) {
    out << bytes;
  } else {
    SaveFile(options.out, bytes);
  }
}

}  // namespace ORXKMPrintProp::host
