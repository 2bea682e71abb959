# The one place that people and machines start from: see docs/contributing.md.
SHELL := /usr/bin/env bash
.SHELLFLAGS := -euo pipefail -c
.DEFAULT_GOAL := build
MAKEFLAGS += --no-print-directory

JOBS ?= $(shell nproc)
BUILD ?= build
SANITIZE_BUILD ?= build-sanitize
TEST_JOBS ?= $(JOBS)

.PHONY: run build test lint sanitize bench pictures host-guide package clean packages

run: packages
	@tools/build.sh $(BUILD) $(JOBS) companion
	$(BUILD)/bin/companion

build: packages
	@tools/build.sh $(BUILD) $(JOBS)

test: build
	@tools/run-tests.sh $(BUILD) $(TEST_JOBS)

lint: packages
	@tools/lint.sh $(JOBS)

sanitize: packages
	@tools/build.sh $(SANITIZE_BUILD) $(JOBS) -DKZ_SANITIZE=ON
	@tools/run-tests.sh $(SANITIZE_BUILD) $(TEST_JOBS)

bench: packages
	@tools/build.sh $(BUILD) $(JOBS) bench/all bounds_tests
	$(BUILD)/bin/benchmarks
	$(BUILD)/bin/prefs-bench --window
	$(BUILD)/bin/prefs-bench --window --fade
	$(BUILD)/tests/bounds_tests --gtest_brief=1

# The pictures of the documents, from runs of the programs.
pictures: build
	@tools/draw-pictures.sh $(BUILD)

# The tables of docs/host-guide.md, from the code's own.
host-guide: build
	@tools/host-guide.py $(BUILD)/bin/host-guide-tables

# A Debian package of the plug-in, its programs and the host SDK.
package: build
	@cd $(BUILD) && cpack -G DEB

clean:
	rm -rf $(BUILD) $(SANITIZE_BUILD) build-lint

packages:
	@tools/install-packages.sh
