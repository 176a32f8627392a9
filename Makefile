# Penwick: the two everyday commands are `make run` and `make test`.
# Both install what is missing (Debian packages), configure and build first.

BUILD_DIR    ?= build
SANITIZE_DIR ?= build-sanitize
PACKAGE_DIR  ?= build-package
JOBS         ?= $(shell nproc)
CMAKE_FLAGS  ?=

APP := $(BUILD_DIR)/src/app/penwick

.PHONY: all deps configure build run test test-sanitize bench package clean

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake -S . -B $(BUILD_DIR) -G Ninja $(CMAKE_FLAGS) >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	@exec $(APP)

test: build
	@ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

# The core's tests and the fuzz targets' replays once more, built with
# AddressSanitizer and UndefinedBehaviorSanitizer; only what they need is built.
test-sanitize: deps
	@cmake -S . -B $(SANITIZE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Debug \
	    -DPENWICK_SANITIZE=ON -DPENWICK_BUILD_BENCH=OFF $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(SANITIZE_DIR) -j $(JOBS) --target core_tests
	@ctest --test-dir $(SANITIZE_DIR) --output-on-failure -j $(JOBS) -L core

bench: build
	@for b in $(BUILD_DIR)/bench/bench_*; do [ -x "$$b" ] && "$$b" || exit 1; done
	@bench/startup.sh $(BUILD_DIR)

# The Debian package penwick_<version>_<arch>.deb, here, from a Release tree of
# its own built with Debian's hardening flags; only what it installs is built.
package: deps
	@export DEB_BUILD_MAINT_OPTIONS=hardening=+all; \
	 CXXFLAGS="$$(dpkg-buildflags --get CXXFLAGS) $$(dpkg-buildflags --get CPPFLAGS)" \
	 LDFLAGS="$$(dpkg-buildflags --get LDFLAGS)" \
	 cmake -S . -B $(PACKAGE_DIR) -G Ninja -DCMAKE_BUILD_TYPE=Release -DPENWICK_BUILD_BENCH=OFF \
	    -DCMAKE_SKIP_INSTALL_ALL_DEPENDENCY=ON $(CMAKE_FLAGS) >/dev/null
	@cmake --build $(PACKAGE_DIR) -j $(JOBS) --target penwick penwickctl man_pages
	@cd $(PACKAGE_DIR) && cpack >/dev/null
	@cp $(PACKAGE_DIR)/penwick_*.deb .
	@ls penwick_*.deb

clean:
	@rm -rf $(BUILD_DIR) $(SANITIZE_DIR) $(PACKAGE_DIR)
