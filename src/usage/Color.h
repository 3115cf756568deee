#pragma once

namespace brimly {

enum class ColorSpace { displayP3, sRGB };

// A colour as its components in a named RGB space, each 0 to 1, with an opacity. The component
// values are gamma-encoded, as colour pickers and style guides write them.
struct Color {
  double red = 0.0;
  double green = 0.0;
  double blue = 0.0;
  double opacity = 1.0;
  ColorSpace space = ColorSpace::sRGB;

  static constexpr Color displayP3(double red, double green, double blue, double opacity = 1.0) {
    return Color{red, green, blue, opacity, ColorSpace::displayP3};
  }
  static constexpr Color sRGB(double red, double green, double blue, double opacity = 1.0) {
    return Color{red, green, blue, opacity, ColorSpace::sRGB};
  }

  // The same colour with its opacity multiplied by `factor`, as a view system's opacity modifier
  // on a colour does.
  constexpr Color withOpacity(double factor) const {
    return Color{red, green, blue, opacity * factor, space};
  }

  // The colour in sRGB for drawing on a surface that knows only sRGB. Display P3 components are
  // linearised, mapped through the P3-to-sRGB matrix (both spaces share the D65 white point and
  // the sRGB transfer curve), re-encoded and clamped to 0…1, since sRGB cannot hold P3's most
  // saturated colours. An sRGB colour is returned as it is.
  Color inSRGB() const;

  // This colour laid over the opaque `background`, as an opaque sRGB colour: the gamma-encoded
  // components mixed by this colour's opacity, as a window system blends them.
  Color over(const Color& background) const;
  // The relative luminance of WCAG 2 (0 for black, 1 for white) of the opaque colour; the
  // opacity is not looked at.
  double relativeLuminance() const;

  bool operator==(const Color&) const = default;
};

// The contrast ratio of WCAG 2 between two opaque colours: from 1 (the same luminance) to 21 (black
// and white), whichever is the lighter.
double contrastRatio(const Color& first, const Color& second);

// The two ends of a bar's left-to-right gradient.
struct ColorPair {
  Color start;
  Color end;

  bool operator==(const ColorPair&) const = default;
};

}  // namespace brimly
