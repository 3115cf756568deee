# Thin front door over CMake presets. `make test` and `make run` set everything up first.
PRESET ?= dev
BUILD_DIR := build/$(PRESET)
# Where `make install` puts Brimly (under $(DESTDIR) when that is set, as for staging).
PREFIX ?= /usr/local
SYSTEM := $(shell uname -s)
# On macOS the program lives inside its application bundle.
ifeq ($(SYSTEM),Darwin)
APP := $(BUILD_DIR)/src/app/Brimly.app/Contents/MacOS/Brimly
else
APP := $(BUILD_DIR)/src/app/brimly
endif

.PHONY: deps test-deps build test run audit bench footprint package install uninstall format clean

deps:
	@scripts/install-deps

# Also what only the tests use (the desktops the end-to-end tests start).
test-deps:
	@scripts/install-deps --test

build: deps
	@cmake --preset $(PRESET)
	@cmake --build --preset $(PRESET)

test: test-deps build
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

# Linux: a Debian package (build/<preset>/brimly_<version>_<architecture>.deb) with the program,
# its desktop entry, AppStream metadata and icons; scripts/check-package checks it.
# macOS: a disk image (build/<preset>/Brimly-<version>-macOS-arm64.dmg) with Brimly.app made
# self-contained (Qt deployed into it) and signed ad hoc. A build that defines no package says so.
package: build
ifeq ($(SYSTEM),Darwin)
	@cmake --build --preset $(PRESET) --target deploy
endif
	@if [ -f $(BUILD_DIR)/CPackConfig.cmake ]; then \
	  cmake --build --preset $(PRESET) --target package; \
	else echo "make package: this build defines no package for $(SYSTEM) yet"; fi

# Linux: the files the package holds, installed under PREFIX without a package manager (stripped,
# as the package has them). Unlike the other targets it configures only a build folder that is not
# there yet, so that after `make build` a `sudo make install` builds nothing as root and only
# copies. `make uninstall` removes what the last install wrote; give it the same DESTDIR, since
# CMake's list of installed files leaves that out.
ifeq ($(SYSTEM),Darwin)
install uninstall:
	@echo "make $@: on macOS, copy Brimly.app from the disk image of \`make package\` instead"; exit 1
else
install:
	@[ -f $(BUILD_DIR)/build.ninja ] || $(MAKE) --no-print-directory build PRESET=$(PRESET)
	@cmake --build --preset $(PRESET)
	@DESTDIR="$(DESTDIR)" cmake --install $(BUILD_DIR) --prefix "$(PREFIX)" --strip

uninstall:
	@if [ -f $(BUILD_DIR)/install_manifest.txt ]; then \
	  xargs -d '\n' -I '{}' rm -fv "$(DESTDIR){}" < $(BUILD_DIR)/install_manifest.txt; \
	else echo "make uninstall: $(BUILD_DIR) has installed nothing"; fi
endif

# Optimised build; prints both medians and the sampler's ratio to the bare kernel-file reads,
# then what the open panel's frames cost: through the X display when there is one, else offscreen.
bench: deps
	@cmake --preset bench
	@cmake --build --preset bench --target brimly_sampler_bench brimly_panel_frame_bench
	@build/bench/bench/brimly_sampler_bench
	@if [ -n "$$DISPLAY" ]; then build/bench/bench/brimly_panel_frame_bench; \
	else QT_QPA_PLATFORM=offscreen build/bench/bench/brimly_panel_frame_bench; fi

format:
	@git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format -i

clean:
	@rm -rf build
