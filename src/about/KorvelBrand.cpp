#include "about/KorvelBrand.h"

#include <QByteArray>

#include "about/KorvelLogoData.h"

namespace brimly::KorvelBrand {

std::optional<QImage> decodeLogo(std::string_view base64) {
  const auto decoded = QByteArray::fromBase64Encoding(
      QByteArray(base64.data(), static_cast<qsizetype>(base64.size())),
      QByteArray::AbortOnBase64DecodingErrors);
  if (!decoded || decoded.decoded.isEmpty()) return std::nullopt;
  QImage image;
  if (!image.loadFromData(decoded.decoded) || image.isNull()) return std::nullopt;
  return image;
}

const std::optional<QImage>& logo() {
  static const std::optional<QImage> decoded = decodeLogo(korvelLogoBase64);
  return decoded;
}

}  // namespace brimly::KorvelBrand
