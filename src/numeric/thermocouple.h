// Thermocouple voltages to temperatures, once the voltage of the cold junction is known.
#pragma once
#include "QuorDSP_DAQ.h"
#include "cpu/instruction_set.h"
#include "numeric/thermocouple_tables.h"

namespace quordsp {

// What QuorDSP_Thermocouple does for one type, count >= 0. Every instruction set gives the same bits.
AnalysisLibErrType invert(InstructionSet set, const InverseFunction& function, const double* emf, int count, int unit,
                          float coldJunctionVoltage, double* temperature) noexcept;

} // namespace quordsp
