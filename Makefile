# Thin front door over CMake presets. `make test` and `make run` set everything up first.
PRESET ?= dev
BUILD_DIR := build/$(PRESET)

.PHONY: deps build test run audit bench format clean

deps:
	@scripts/install-deps

build: deps
	@cmake --preset $(PRESET)
	@cmake --build --preset $(PRESET)

test: build
	@ctest --preset $(PRESET)

run: build
	@echo "Brimly: the application is not part of the build yet; the libraries and tests are."

audit: build
	@cmake --build --preset $(PRESET) --target audit

# Optimised build; prints both medians and the sampler's ratio to the bare kernel-file reads.
bench: deps
	@cmake --preset bench
	@cmake --build --preset bench
	@build/bench/bench/brimly_sampler_bench

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf build
