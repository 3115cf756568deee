// Mirrors the macOS SDK's CoreGraphics geometry declarations used by src/platform/macos, for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

typedef double CGFloat;  // 64-bit targets

struct CGPoint {
  CGFloat x;
  CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
  CGFloat width;
  CGFloat height;
};
typedef struct CGSize CGSize;

struct CGRect {
  CGPoint origin;
  CGSize size;
};
typedef struct CGRect CGRect;
