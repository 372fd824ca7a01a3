# Entry points; everything else is CMake's. `make help` lists them.

SHELL := /bin/bash
PRESET := release
JOBS := $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help setup configure build run test bench check clean references \
        setup-windows configure-windows windows test-windows

help:  ## List the commands
	@sed -n 's/^\([a-z-]*\):.*## /  make \1\t/p' Makefile | expand -t 24

setup:  ## Install the Debian packages that are missing
	@tools/setup/install-packages

configure: setup
	@cmake --preset $(PRESET) --log-level=WARNING

build: configure  ## Build everything (PRESET=debug, asan or release; release unless told)
	@cmake --build --preset $(PRESET) --parallel $(JOBS)

run: configure  ## Open the head unit, or without a display play its tour into build/tour
	@cmake --build --preset $(PRESET) --parallel $(JOBS) --target headunit headunitctl mainapp
	@MAIN=$(MAIN) tools/run-headunit build/$(PRESET)/bin build/tour

test: build  ## Run every test
	@ctest --preset $(PRESET) --parallel $(JOBS)

references: build  ## Write the reference pictures of the tests anew; look at each before you commit it
	@KORVANE_ACCEPT_REFERENCES=1 ctest --preset $(PRESET) --parallel $(JOBS) --quiet
	@git status --short tests/references

setup-windows: setup
	@tools/setup/install-packages packages-windows.txt
	@tools/windows/build-libraries x86_64 i686

# What a build for Windows shares with one for this machine is made here: pictures, layouts.
configure-windows: setup-windows
	@cmake --preset release --log-level=WARNING
	@cmake --build --preset release --parallel $(JOBS) --target device_content headunit headunitctl
	@cmake --preset windows --log-level=WARNING

windows: configure-windows  ## Build the programs for Windows into build/windows/KorvaneEx
	@cmake --build --preset windows --parallel $(JOBS) --target windows_folder

test-windows: configure-windows  ## Run every test on Windows' side, under Wine
	@cmake --preset windows32 --log-level=WARNING
	@cmake --build --preset windows32 --parallel $(JOBS)
	@cmake --build --preset windows --parallel $(JOBS) --target all windows_folder
	@tools/windows/test $(JOBS)

bench: configure  ## Measure speed, frames, start, memory and size
	@cmake --build --preset $(PRESET) --parallel $(JOBS) --target korvane_bench
	@build/$(PRESET)/bin/korvane_bench

check: setup  ## Check format, layering and that each header compiles alone
	@tools/check/format
	@tools/check/layering
	@tools/check/headers

clean:  ## Remove everything that was built
	rm -rf build
