# Thin front door over CMake presets. `make test` and `make run` set everything up first.
PRESET ?= dev
BUILD_DIR := build/$(PRESET)
APP := $(BUILD_DIR)/src/app/brimly

.PHONY: deps build test run audit bench footprint format clean

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

# Optimised build; prints both medians and the sampler's ratio to the bare kernel-file reads.
bench: deps
	@cmake --preset bench
	@cmake --build --preset bench --target brimly_sampler_bench
	@build/bench/bench/brimly_sampler_bench

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf build
