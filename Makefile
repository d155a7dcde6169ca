# Quick start on a fresh Debian 12 machine:
#   make run    install what is missing, build, start the program on the example world
#   make test   install what is missing, build, run every test
#   make install, make package   see the README's "Installing"
PACKAGES := build-essential cmake qt6-base-dev libgl-dev libgtest-dev libbenchmark-dev xvfb xauth \
  desktop-file-utils appstream
BUILD := build
ASAN_BUILD := build-asan
JOBS ?= 2
SUDO := $(shell [ "$$(id -u)" = 0 ] || echo sudo)
EXAMPLE := examples/example.om1
PREFIX ?= /usr/local

.PHONY: all deps build run test sanitize bench clean format install package

all: build

deps:
	@missing=""; for p in $(PACKAGES); do \
	  dpkg-query -W -f='$${Status}' $$p 2>/dev/null | grep -q "install ok installed" || missing="$$missing $$p"; \
	done; \
	if [ -n "$$missing" ]; then \
	  echo "Installing:$$missing"; \
	  $(SUDO) apt-get update -qq && $(SUDO) env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq $$missing; \
	fi

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release

build: deps $(BUILD)/CMakeCache.txt
	cmake --build $(BUILD) -j$(JOBS)

run: build
	@if [ -x $(BUILD)/bin/wayscribe ]; then \
	  $(BUILD)/bin/wayscribe $(EXAMPLE); \
	else \
	  $(BUILD)/bin/wayscribe-cli info $(EXAMPLE) && $(BUILD)/bin/wayscribe-cli stats $(EXAMPLE); \
	fi

test: build
	ctest --test-dir $(BUILD) --output-on-failure -j$(JOBS)

# The same tests under AddressSanitizer and UndefinedBehaviorSanitizer.
sanitize: deps
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DWAYSCRIBE_SANITIZE=ON -DWAYSCRIBE_BENCH=OFF -DWAYSCRIBE_WERROR=ON
	cmake --build $(ASAN_BUILD) -j$(JOBS)
	ASAN_OPTIONS=detect_leaks=0 ctest --test-dir $(ASAN_BUILD) --output-on-failure -j$(JOBS)

bench: build
	@for b in $(BUILD)/bin/*_bench; do echo "== $$b"; $$b; done

# Installs under PREFIX; DESTDIR=/some/root puts the same tree under that folder.
install: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=$(PREFIX)
	cmake --build $(BUILD) -j$(JOBS)
	DESTDIR="$(DESTDIR)" cmake --install $(BUILD)

# The Debian package, of the program built for /usr: $(BUILD)/wayscribe_VERSION-1_ARCH.deb
package: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr
	cmake --build $(BUILD) -j$(JOBS)
	cd $(BUILD) && cpack

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

# libFuzzer on every reader of outside data (fuzz/): FUZZ_SECONDS for each
# target, its executions and findings printed; fails when anything is found.
# Needs clang, installed only for this target.
FUZZ_PACKAGES := clang libclang-rt-dev
FUZZ_BUILD := build-fuzz
FUZZ_SECONDS ?= 60

.PHONY: fuzz
fuzz:
	@$(MAKE) --no-print-directory deps PACKAGES="$(PACKAGES) $(FUZZ_PACKAGES)"
	@[ -f $(FUZZ_BUILD)/CMakeCache.txt ] || cmake -S . -B $(FUZZ_BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_CXX_COMPILER=clang++ -DWAYSCRIBE_FUZZ=ON
	cmake --build $(FUZZ_BUILD) -j$(JOBS) --target fuzz_targets fuzz_corpus
	fuzz/run_fuzzers.sh $(FUZZ_BUILD) $(FUZZ_SECONDS)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
