"""Checks under which names object files ask for the two exports with decorated names.

usage: check_decorated.py OBJECT ...
"""
import subprocess
import sys

PARKS = "?QuorDSP_Parks_McClellanCoef@@YA?AW4AnalysisLibErrType@@HNQEAN000HH0PEAN@Z"
EULER = "?QuorDSP_Vibration_Acceleration_Euler@@YA?AW4AnalysisLibErrType@@QEANHNNNNNNNNN0000H@Z"
NAMES = {
    "windows": {"__imp_" + PARKS, "__imp_" + EULER},
    "linux": {"_Z27QuorDSP_Parks_McClellanCoefidPdS_S_S_iiS_S_",
              "_Z36QuorDSP_Vibration_Acceleration_EulerPdidddddddddS_S_S_S_i"},
}


def wanted(path):
    command = ["llvm-nm-19", "--undefined-only", "--just-symbol-name", path]
    symbols = subprocess.run(command, check=True, capture_output=True, text=True).stdout.split()
    return {symbol for symbol in symbols if "QuorDSP_" in symbol}


def main(*objects):
    failed = 0
    for path in objects:
        names = NAMES["windows" if path.endswith((".obj", ".o.obj")) else "linux"]
        if wanted(path) != names:
            print(f"{path}: asks for {sorted(wanted(path))} instead of {sorted(names)}")
            failed += 1
    print(f"{len(objects) - failed} of {len(objects)} objects ask for the decorated names")
    return 1 if failed or not objects else 0


sys.exit(main(*sys.argv[1:]))
