#pragma once

#include <vector>

#include <QByteArray>

namespace parlexo {

/// Colours of the tiny GIFs, by their number in the colour table.
enum class GifColor { Black, Red, Green, Blue };

/// One frame of a tiny GIF: `wide` pixels of one colour in a row, 1 or 2.
struct GifFrame {
  GifColor color;
  int left;
  int wide;
  int storedHundredths;
  int disposal;
};

/// A GIF of 2 x 1 pixels, put together from the bytes that the format prescribes.
inline QByteArray tinyGif(const std::vector<GifFrame>& frames) {
  // Compressed pixels by colour: "clear, colour, end" and "clear, colour, colour, end" in codes of 3 bits.
  const char* onePixel[] = {"4401", "4c01", "5401", "5c01"};
  const char* twoPixels[] = {"040a", "4c0a", "940a", "dc0a"};
  // Signature, size, flags, then the colour table.
  QByteArray hex = QByteArray("47494638396102000100f10000") + "000000ff000000ff000000ff";
  for (const GifFrame& frame : frames) {
    const auto byte = [](int value) { return QByteArray::number(value, 16).rightJustified(2, '0'); };
    const int color = int(frame.color);
    hex += "21f904" + byte(frame.disposal << 2) + byte(frame.storedHundredths) + "000000";
    hex += "2c" + byte(frame.left) + "000000" + byte(frame.wide) + "00010000";
    hex += "0202" + QByteArray(frame.wide == 1 ? onePixel[color] : twoPixels[color]) + "00";
  }
  return QByteArray::fromHex(hex + "3b");
}

}  // namespace parlexo
