#pragma once

#include <cstdint>

namespace ORXKMPrintProp {

/// @file
/// The public enumerations, as the host sees them. They stand beside the cell codecs, which turn them into the
/// codes of the tables. A variable may hold a value outside its enumeration; the encoders say what becomes of it.

/// What prints of a value: its key, its description, or both in two columns.
enum PP_ValuePresentation : std::int32_t {
  PP_VALP_KEYTEXT = 0,
  PP_VALP_TEXT = 1,
  PP_VALP_KEY = 2,
  PP_VALP_TEXTKEY = 3,
};

enum PP_Alignment : std::int32_t {
  PP_PRN_ALIGN_LEFT = 0,
  PP_PRN_ALIGN_RIGHT = 1,
  PP_PRN_ALIGN_CENTER = 2,
};

/// Sequence of pages when printing.
enum PP_PrnDirection : std::int32_t {
  PP_PRN_DIR_HORIZONTAL = 0,
  PP_PRN_DIR_VERTICAL = 1,
};

enum PP_SumPosit : std::int32_t {
  PP_PRN_SUM_TOPLEFT = 0,
  PP_PRN_SUM_BOTTOMRIGHT = 1,
};

enum PP_SignPrsnt : std::int32_t {
  PP_PRN_SIGN_PREFIX = 0,
  PP_PRN_SIGN_POSTFIX = 1,
  PP_PRN_SIGN_BRACES = 2,
};

enum PP_CurUnitPosition : std::int32_t {
  PP_PRN_CUPOS_LEFT = 0,
  PP_PRN_CUPOS_RIGHT = 1,
  PP_PRN_CUPOS_HEAD = 2,
  PP_PRN_CUPOS_NONE = 3,
};

enum PP_NoSums : std::int32_t {
  PP_PRN_NOSUMS_NEVER = 0,
  PP_PRN_NOSUMS_CONDITION = 1,
  PP_PRN_NOSUMS_ALWAYS = 2,
};

}  // namespace ORXKMPrintProp
