# The entry point for developers and CI: see docs/contributing.md.
SHELL := /usr/bin/env bash
.SHELLFLAGS := -euo pipefail -c
.DEFAULT_GOAL := build
MAKEFLAGS += --no-print-directory

JOBS ?= $(shell nproc)
BUILD ?= build
SANITIZE_BUILD ?= build-sanitize
THREADS_BUILD ?= build-threads
# The keychain's, each on a bus of its own, without a test that only starts another program; and all others.
THREADS_SUITES = 'RealKeychain.*-*.IsStoppedAtTheEndOfARun' 'FaultyKeychain.*:SlowKeychain.*' '-*Keychain.*'
# Tests wait more than they compute.
TEST_JOBS ?= $(shell expr 2 \* $(JOBS))

CONFIGURE = cmake -S . -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
NINJA = ninja -C $(BUILD) -j $(JOBS)

.PHONY: run build test test-debian13 test-real lint sanitize threads bench pictures documents package clean packages

run: $(BUILD)/build.ninja
	@$(NINJA) companion
	$(BUILD)/bin/companion

build: $(BUILD)/build.ninja
	@$(NINJA)

test: build
	@tools/run-tests.sh $(BUILD) $(TEST_JOBS)

# The same under the next Debian, in a chroot.
test-debian13:
	@tools/test-debian13.sh $(BUILD)

# Against programs that others wrote: providers, a browser, keyrings, name and web servers.
test-real: $(BUILD)/build.ninja
	@tools/install-packages.sh real
	@$(NINJA) companion discover prefs-session
	@tools/test-real.sh $(BUILD)

lint: $(BUILD)/build.ninja
	@$(NINJA) build.ninja >/dev/null
	@tools/lint.sh $(BUILD) $(JOBS)

sanitize: $(SANITIZE_BUILD)/build.ninja
	@ninja -C $(SANITIZE_BUILD) -j $(JOBS)
	@tools/run-tests.sh $(SANITIZE_BUILD) $(TEST_JOBS)

# The tests of what several threads use, under ThreadSanitizer.
threads: $(THREADS_BUILD)/build.ninja
	@ninja -C $(THREADS_BUILD) -j $(JOBS) threads_tests
	@export TSAN_OPTIONS=suppressions=tests/threads-suppressions.txt:atexit_sleep_ms=0; \
	for suites in $(THREADS_SUITES); do \
	  tests/host/keychain/with-private-bus.sh $(THREADS_BUILD)/tests/threads_tests --gtest_brief=1 --gtest_filter=$$suites; \
	done

bench: $(BUILD)/build.ninja
	@$(NINJA) bench/all bounds_tests
	$(BUILD)/bin/benchmarks
	$(BUILD)/bin/prefs-bench --window
	$(BUILD)/bin/prefs-bench --window --fade
	$(BUILD)/tests/bounds_tests --gtest_brief=1

# The pictures of windows in the documents, from runs of the programs.
pictures: build
	@tools/draw-pictures.sh $(BUILD)

# The tables, flows and layers in the documents, from the code and runs of the programs.
documents: $(BUILD)/build.ninja
	@$(NINJA) print-commands prefs-session kz-sandbox KZPreference
	@tools/documents.py $(BUILD)/bin

# A Debian package of the plug-in, its programs and the host SDK.
package: build
	@cd $(BUILD) && cpack -G DEB

clean:
	rm -rf $(BUILD) $(SANITIZE_BUILD) $(THREADS_BUILD)

packages:
	@tools/install-packages.sh

# Configures once; after that, ninja configures again when a CMake file has changed.
$(BUILD)/build.ninja: | packages
	@$(CONFIGURE) -B $(BUILD)

$(SANITIZE_BUILD)/build.ninja: | packages
	@$(CONFIGURE) -B $(SANITIZE_BUILD) -DKZ_SANITIZE=ON

$(THREADS_BUILD)/build.ninja: | packages
	@$(CONFIGURE) -B $(THREADS_BUILD) -DKZ_SANITIZE=thread
