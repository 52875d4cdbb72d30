# Thin names over the CMake presets and the scripts in tools/.
.POSIX:
.PHONY: help setup demo test dist bench exhaustive fuzz format lint clean

help: ## this list
	@sed -n 's/^\([a-z]*\):.*## /  make \1\t/p' Makefile | expand -t 16

setup: ## install the Debian packages that are missing
	@tools/setup.sh

demo: dist ## the Windows tool on five real recordings: filters, spectra, vibration, beats, furnace; out/demo/
	@tools/demo.sh

test: setup ## every check and test, on Windows (through Wine) and Linux
	@tools/test.sh

dist: setup ## release versions for Windows and Linux in dist/
	@tools/dist.sh

bench: setup ## the benchmarks, beside their peers
	@tools/bench.sh

fuzz: setup ## the fuzz targets, each for FUZZ_SECONDS (60)
	@tools/fuzz.sh

exhaustive: setup ## every thermocouple voltage, every size of transform up to 4096, all equiripple rows; long
	@tools/exhaustive.sh

format: ## format the C++ sources
	@git ls-files '*.cpp' '*.h' ':!include' | xargs clang-format-19 -i

lint: setup ## clang-tidy over the library, the backend and the tool
	@tools/lint.sh

clean: ## remove everything that was built
	@rm -rf build dist out
