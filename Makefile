# Entry points; everything else is CMake's. `make help` lists them.

SHELL := /bin/bash
PRESET := release
JOBS := $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help setup configure build run test bench check clean references

help:  ## List the commands
	@sed -n 's/^\([a-z]*\):.*## /  make \1\t/p' Makefile | expand -t 24

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

bench: configure  ## Measure speed, frames, start, memory and size
	@cmake --build --preset $(PRESET) --parallel $(JOBS) --target korvane_bench
	@build/$(PRESET)/bin/korvane_bench

check: setup  ## Check format, layering and that each header compiles alone
	@tools/check/format
	@tools/check/layering
	@tools/check/headers

clean:  ## Remove everything that was built
	rm -rf build
