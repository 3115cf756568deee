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

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf build
