// The fuzz targets: each takes its arguments from the bytes, calls its routine and demands what must hold of the
// results. One execution takes well under a millisecond.
#pragma once
#include "bytes.h"

namespace quordsp::fuzz {

using Target = void(Bytes bytes);

Target linear_regression;
Target detrend;
Target vibration;
Target acceleration;
Target vibration_euler;
Target thermocouple;
Target snr;
Target write_wav;
Target write_wav_file;

} // namespace quordsp::fuzz
