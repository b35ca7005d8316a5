// The hardware around the core: parity, timers 0 to 2, external interrupt lines, interrupt
// dispatch. There is no serial port, no watchdog, no power-down. Timers count the bytes of
// instructions.
#pragma once

namespace varnholt {

// PSW.0 becomes the parity of ACC.
void Paritaet_Setzen();

// One pass over timers and external lines; n is the length in bytes of the instruction that ran, 3
// for an interrupt entry. Refreshes the registers in the SFR view when Mit_Anzeige.
// sets: timer registers, TCON, T2CON, RCAP2, Sim_Pins
template <bool Mit_Anzeige> void Peripherie_Takt_T(int n);
inline void                      Peripherie_Takt(int n) { Peripherie_Takt_T<true>(n); }

// Takes at most one interrupt.   sets: Sim_PC, Sim_Prio, stack, Sim_Zyklen, request flags
template <bool Mit_Anzeige> void Interrupts_Pruefen_T();
inline void                      Interrupts_Pruefen() { Interrupts_Pruefen_T<true>(); }

// Counts 3 cycles, passes 3 ticks and pushes Sim_PC; the caller sets the vector.
template <bool Mit_Anzeige> void Interrupt_Eintritt_T();
inline void                      Interrupt_Eintritt() { Interrupt_Eintritt_T<true>(); }

} // namespace varnholt
