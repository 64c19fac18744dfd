#pragma once

#include <array>

#include "model/ColumnTable.h"

namespace ORXKMPrintProp {

/// How the two columns of a characteristic or an attribute are kept: as they stand in the rows of both.
template <class C>
inline constexpr std::array kTwoColumns = {
    PropertyColumn<C, &C::Presentation, PresentationCell>(u"IOBJPRSNT"),
    PropertyColumn<C, &C::ColFix1, FlagCell>(u"PR_COL1_FIX"),
    PropertyColumn<C, &C::ColFix2, FlagCell>(u"PR_COL2_FIX"),
    PropertyColumn<C, &C::ColAutoWidth, FlagCell>(u"PR_AUTO_WIDTH"),
    PropertyColumn<C, &C::ColWidth1, IntegerCell>(u"PR_COL1_WIDTH"),
    PropertyColumn<C, &C::ColWidth2, IntegerCell>(u"PR_COL2_WIDTH"),
    PropertyColumn<C, &C::ColAlign1, AlignCell>(u"PR_COL1_ALIGN"),
    PropertyColumn<C, &C::ColAlign2, AlignCell>(u"PR_COL2_ALIGN"),
    PropertyColumn<C, &C::ColTitle, TextCell>(u"PR_COL1_HEADER"),
    PropertyColumn<C, &C::ColTitle, TextCell>(u"PR_COL2_HEADER", Direction::WriteOnly),
};

}  // namespace ORXKMPrintProp
