# Thin front door over CMake presets. `make test` and `make run` set everything up first.
PRESET ?= dev
BUILD_DIR := build/$(PRESET)
SYSTEM := $(shell uname -s)
# On macOS the program lives inside its application bundle.
ifeq ($(SYSTEM),Darwin)
APP := $(BUILD_DIR)/src/app/Brimly.app/Contents/MacOS/Brimly
else
APP := $(BUILD_DIR)/src/app/brimly
endif

.PHONY: deps build test run audit bench footprint package format clean

deps:
	@scripts/install-deps

build: deps
	@cmake --preset $(PRESET)
	@cmake --build --preset $(PRESET)

test: build
	@ctest --preset $(PRESET)

# Without a display Brimly says so in one line (exit status 3); the text report follows instead.
run: build
	@status=0; $(APP) || status=$$?; \
	if [ $$status -eq 3 ]; then $(APP) --audit; else exit $$status; fi

# Memory, CPU time and wake-ups of a running Brimly under Xvfb, beside conky (takes minutes).
footprint: build
	@scripts/footprint $(APP)

audit: build
	@cmake --build --preset $(PRESET) --target audit

# macOS: a disk image (build/<preset>/Brimly-<version>-macOS-arm64.dmg) with Brimly.app made
# self-contained (Qt deployed into it) and signed ad hoc. A build that defines no package says so.
package: build
ifeq ($(SYSTEM),Darwin)
	@cmake --build --preset $(PRESET) --target deploy
endif
	@if [ -f $(BUILD_DIR)/CPackConfig.cmake ]; then \
	  cmake --build --preset $(PRESET) --target package; \
	else echo "make package: this build defines no package for $(SYSTEM) yet"; fi

# Optimised build; prints both medians and the sampler's ratio to the bare kernel-file reads.
bench: deps
	@cmake --preset bench
	@cmake --build --preset bench --target brimly_sampler_bench
	@build/bench/bench/brimly_sampler_bench

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf build
