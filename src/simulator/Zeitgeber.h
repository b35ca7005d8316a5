// Bits of the timer registers, and what the two halves of the peripherals ask each other. Private
// to Peripherie and Ruhe.
#pragma once

namespace varnholt {

inline constexpr int Laufbit[2]      = {4, 6}; // TR0, TR1 in TCON
inline constexpr int Ueberlaufbit[2] = {5, 7}; // TF0, TF1 in TCON
inline constexpr int TMOD_CT         = 4;      // masks in a timer's half of TMOD
inline constexpr int TMOD_Gate       = 8;
inline constexpr int IE_EA           = 7;
// Bits of T2CON.
inline constexpr int T2_CP_RL = 0, T2_CT = 1, T2_TR = 2, T2_EXEN = 3, T2_TCLK = 4, T2_RCLK = 5,
                     T2_EXF = 6, T2_TF = 7;

// Whether some request has flag, enable bit and priority to enter (EA isn't asked).
bool Anfrage_Qualifiziert();
// Whether a line that works by level is low, enabled, and has no request yet.
bool Pegel_Setzt_Anfrage();
// Whether all pins stand as at the end of the last pass.
bool Stifte_Ruhig();

} // namespace varnholt
