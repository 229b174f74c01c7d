# The front door: `make run` and `make test` are all a newcomer needs.

JOBS ?= $(shell nproc)
TEST_JOBS ?= 2
PREFIX ?= /usr/local
DESTDIR ?=
ARGS ?=
WERROR ?= OFF
FUZZ_SECONDS ?= 60

release := build/release

.DEFAULT_GOAL := help
.NOTPARALLEL:
.PHONY: help deps build run test soak unit-asan fuzz bench lint lint-text format install package package-test dist screenshots clean

help: ## this list
	@awk -F ':[^#]*## ' '/^[a-z-]+:.*## / { printf "  make %-13s %s\n", $$1, $$2 }' Makefile

deps: ## installs what is needed, or says what is missing where there is no apt
	@tools/deps.sh

build: ## leaves the programs in build/release/bin
	cmake --preset release -DNOCTURO_WERROR=$(WERROR) -DCMAKE_INSTALL_PREFIX=$(PREFIX)
	cmake --build --preset release --parallel $(JOBS)

run: deps build ## builds and starts Nocturo with ARGS="..."
	@tools/run.sh $(release)/bin/nocturo $(ARGS)

test: deps build ## builds and runs every test
	@ctest --preset release --no-tests=error --parallel $(TEST_JOBS) --label-exclude '^(soak|package)$$'

soak: deps build ## builds and runs the tests that take minutes
	@ctest --preset release --no-tests=error --label-regex '^soak$$'

unit-asan: ## runs the unit tests under AddressSanitizer and UndefinedBehaviorSanitizer
	cmake --preset asan
	cmake --build --preset asan --target unit_tests --parallel $(JOBS)
	@ctest --preset asan --no-tests=error --parallel $(TEST_JOBS) --label-regex '^unit$$'

fuzz: deps ## feeds what reads files FUZZ_SECONDS of invented ones each; needs clang++
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	@tools/fuzz.sh build/fuzz $(FUZZ_SECONDS)

bench: build ## builds and runs the benchmarks
	@set -e; for bench in $(release)/bin/*_bench; do echo "$$bench"; "$$bench"; done

screenshots: build ## takes the pictures of the windows anew; with LOOKS=dir all looks, into that
	cmake --build --preset release --target window_pictures --parallel $(JOBS)
	@tools/screenshots.sh $(LOOKS)

lint-text:
	@tools/lint.sh text

lint: lint-text build ## checks layout, scripts and code
	@tools/lint.sh code $(release) $(JOBS)

format: ## lays the code out
	git ls-files --cached --others --exclude-standard -- '*.cpp' '*.h' | xargs clang-format -i

install: ## installs under PREFIX, below DESTDIR; builds first only where nothing is built
	@[ -x $(release)/bin/nocturo ] || $(MAKE) build
	DESTDIR=$(DESTDIR) cmake --install $(release) --prefix $(PREFIX)

dist: ## packs the committed sources into build/package
	@tools/package.sh dist

package: deps ## builds a Debian package in build/package
	@JOBS=$(JOBS) tools/package.sh deb

package-test: package build ## installs that package into a fresh system, starts it and removes it
	@ctest --preset release --no-tests=error --label-regex '^package$$'

clean: ## removes everything that was built
	rm -rf build
