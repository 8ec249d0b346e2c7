// SPDX-License-Identifier: MIT
// Constants for points, directions, matrices and colours.
#pragma once

#include "geometry/color.h"
#include "geometry/matrix.h"
#include "geometry/rotation.h"
#include "geometry/vector.h"

namespace libgr {

// Names with the prefix I are neutral values: an offset of 0, a scale of 1, no rotation. `Idir` is
// the scale (1, 1, 1), and `IdirX` to `IdirMZ` are the directions of the axes.

inline constexpr position3_t Ipos{0, 0, 0};
inline constexpr position3_t origin = Ipos;
inline constexpr position3_t datum = Ipos;

inline constexpr direction3_t Idir{1, 1, 1};
inline constexpr direction3_t Iscale = Idir;
inline constexpr direction3_t IdirX{1, 0, 0};
inline constexpr direction3_t IdirY{0, 1, 0};
inline constexpr direction3_t IdirZ{0, 0, 1};
inline constexpr direction3_t IdirMX{-1, 0, 0};
inline constexpr direction3_t IdirMY{0, -1, 0};
inline constexpr direction3_t IdirMZ{0, 0, -1};

// These have direction types because they initialize sizes and offsets.
inline constexpr direction2_t Ipos2{0, 0};
inline constexpr direction2_t datum2 = Ipos2;
inline constexpr direction2l_t Ipos2l{0, 0};
inline constexpr direction2l_t datum2l = Ipos2l;
inline constexpr direction2s_t Ipos2s{0, 0};
inline constexpr direction2s_t datum2s = Ipos2s;
inline constexpr direction2ul_t Ipos2ul{0, 0};
inline constexpr direction2ul_t datum2ul = Ipos2ul;

inline constexpr matrix3w_t Imtx{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};
inline constexpr matrix3w_t I = Imtx;
inline constexpr rotation3_t Irot{0, IdirZ};

inline constexpr color3a_t white{1, 1, 1, 1};
inline constexpr color3a_t black{0, 0, 0, 1};
inline constexpr color3a_t gray{0.5f, 0.5f, 0.5f, 1};
inline constexpr color3a_t gray75{0.75f, 0.75f, 0.75f, 1};
inline constexpr color3a_t gray18{0.18f, 0.18f, 0.18f, 1};
inline constexpr color3a_t magenta{1, 0, 1, 1};
inline constexpr color3a_t yellow{1, 1, 0, 1};
inline constexpr color3a_t cyan{0, 1, 1, 1};
inline constexpr color3a_t brown{0.375f, 0.25f, 0, 1};

inline constexpr color3_t red{1, 0, 0};
inline constexpr color3_t green{0, 1, 0};
inline constexpr color3_t blue{0, 0, 1};

inline constexpr color3aub_t white3aub{255, 255, 255, 255};
inline constexpr color3aub_t black3aub{0, 0, 0, 255};
inline constexpr color3aub_t gray3aub{0x7f, 0x7f, 0x7f, 255};
inline constexpr color3ub_t white3ub{255, 255, 255};
inline constexpr color3ub_t black3ub{0, 0, 0};
inline constexpr color3ub_t gray3ub{0x7f, 0x7f, 0x7f};

/// Converts RGB to luma and chroma with the weights of ITU-R BT.601, which JFIF uses as well.
/// `vector3w(r, g, b, 1) * matrix_rgb2ycbcr` is (y, cb, cr, 1). RGB and luma are from 0 to 1,
/// chroma is from -0.5 to 0.5. See `ycbcrub` in geometry/color.h for the scale of the bytes.
inline constexpr matrix3w_t matrix_rgb2ycbcr{{{0.299f, -0.16874f, 0.5f, 0},
                                              {0.587f, -0.33126f, -0.41869f, 0},
                                              {0.114f, 0.5f, -0.08131f, 0},
                                              {0, 0, 0, 1}}};
/// Converts luma and chroma back to RGB: the inverse of `matrix_rgb2ycbcr`, to 5 decimals.
inline constexpr matrix3w_t matrix_ycbcr2rgb{
    {{1, 1, 1, 0}, {0, -0.34414f, 1.772f, 0}, {1.402f, -0.71414f, 0, 0}, {0, 0, 0, 1}}};
/// Converts RGB to luma and chroma with the weights of ITU-R BT.709, in the same ranges. For the
/// way back, use `Invert`.
inline constexpr matrix3w_t matrix_rgb2ypbpr{{{0.2126f, -0.1146f, 0.5f, 0},
                                              {0.7152f, -0.3854f, -0.4542f, 0},
                                              {0.0722f, 0.5f, -0.0458f, 0},
                                              {0, 0, 0, 1}}};

}  // namespace libgr
