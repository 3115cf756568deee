// Mirrors the macOS SDK's CoreGraphics umbrella header, for the parts src/platform/macos uses; a
// syntax check only (scripts/check-macos-compile).
#pragma once

#include <CoreGraphics/CGBase.h>
#include <CoreGraphics/CGBitmapContext.h>
#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGContext.h>
#include <CoreGraphics/CGGeometry.h>
#include <CoreGraphics/CGImage.h>
