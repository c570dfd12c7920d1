// What the General tab offers: its lists of years, ages and surveys.
#pragma once

namespace tarnvik {

// Refills cmbNFYear, cmbNXYear, cmbNAges, cmbNIndex where they no longer match the general parameter ranges,
// keeps the selections as far as the ranges allow and selects anew, which runs the handlers unless
// LoadingForm is set.
void FillGeneralCombos();

}  // namespace tarnvik
