# Entry points; everything else is CMake's. `make help` lists them.

SHELL := /bin/bash
PRESET := release
JOBS := $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help setup build run test bench check clean

help:  ## List the commands
	@sed -n 's/^\([a-z]*\):.*## /  make \1\t/p' Makefile | expand -t 16

setup:  ## Install the Debian packages that are missing
	@tools/setup/install-packages

build: setup  ## Build everything (PRESET=debug, asan or release; release unless told)
	@cmake --preset $(PRESET) --log-level=WARNING
	@cmake --build --preset $(PRESET) --parallel $(JOBS)

run: build  ## Open the head unit, or without a display play its tour into build/tour
	@tools/run-headunit build/$(PRESET)/bin/headunit build/tour

test: build  ## Run every test
	@ctest --preset $(PRESET) --parallel $(JOBS)

bench: build  ## Measure speed, start, memory and size
	@build/$(PRESET)/bin/korvane_bench

check: setup  ## Check format, layering and that each header compiles alone
	@tools/check/format
	@tools/check/layering
	@tools/check/headers

clean:  ## Remove everything that was built
	rm -rf build
