# The front door: `make run` and `make test` are all a newcomer needs.

JOBS ?= $(shell nproc)
TEST_JOBS ?= 2
PREFIX ?= /usr/local
DESTDIR ?=
ARGS ?=
WERROR ?= OFF
FUZZ_SECONDS ?= 60
RELEASE ?= trixie

release := build/release

.DEFAULT_GOAL := help
.NOTPARALLEL:
.PHONY: help deps build run tests test soak unit-asan fuzz benchmarks bench lint lint-text format install package package-test readme-test desktop-test dist screenshots clean

help: ## this list
	@awk -F ':[^#]*## ' '/^[a-z-]+:.*## / { printf "  make %-13s %s\n", $$1, $$2 }' Makefile

deps: ## installs ahead what all of these need, or says what is missing where there is no apt
	@tools/deps.sh run test lint fuzz bench package screenshots

deps-%:
	@tools/deps.sh $*

# What was configured along once, tests or benchmarks, stays configured.
configure = cmake --preset release -DNOCTURO_WERROR=$(WERROR) -DCMAKE_INSTALL_PREFIX=$(PREFIX)
make_targets = cmake --build --preset release --parallel $(JOBS) --target

build: ## leaves the programs in build/release/bin
	$(configure)
	$(make_targets) programs

run: deps-run build ## builds and starts Nocturo with ARGS="..."
	@tools/run.sh $(release)/bin/nocturo $(ARGS)

tests: deps-test
	$(configure) -DBUILD_TESTING=ON
	$(make_targets) all

test: tests ## builds and runs every test
	@ctest --preset release --no-tests=error --parallel $(TEST_JOBS) --label-exclude '^soak$$'

soak: tests ## builds and runs the tests that take minutes, and prints their figures
	@ctest --preset release --no-tests=error --verbose --label-regex '^soak$$'

unit-asan: deps-test ## runs the unit tests under AddressSanitizer and UndefinedBehaviorSanitizer
	cmake --preset asan
	cmake --build --preset asan --target unit_tests --parallel $(JOBS)
	@ctest --preset asan --no-tests=error --parallel $(TEST_JOBS) --label-regex '^unit$$'

fuzz: deps-fuzz ## feeds what reads files FUZZ_SECONDS of invented ones each; needs clang++
	cmake --preset fuzz
	cmake --build --preset fuzz --parallel $(JOBS)
	@tools/fuzz.sh build/fuzz $(FUZZ_SECONDS)

benchmarks: deps-bench
	$(configure) -DBUILD_TESTING=ON -DNOCTURO_BENCH=ON
	$(make_targets) benchmarks

bench: benchmarks ## builds and runs the benchmarks
	@set -e; for bench in $(release)/bin/*_bench; do echo "$$bench"; "$$bench"; done

screenshots: deps-screenshots ## takes the pictures of the windows anew; with LOOKS=dir all looks, into that
	$(configure) -DBUILD_TESTING=ON
	$(make_targets) programs window_pictures
	@tools/screenshots.sh $(LOOKS)

lint-text: deps-lint
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

package: deps-package ## builds a Debian package in build/package
	@JOBS=$(JOBS) tools/package.sh deb

package-test: package ## installs that package into a fresh system, starts it and removes it
	@tests/packaging/package_test.sh build/package

readme-test: deps-package ## does in a fresh root of Debian RELEASE=trixie what the README says
	@tests/packaging/readme_test.sh $(RELEASE)

desktop-test: deps-package ## looks at the compositors of Debian 13 and testing, in fresh roots, and prints a table
	$(configure) -DBUILD_TESTING=ON
	$(make_targets) programs profile_probe press_keys
	@tools/desktops/desktop_test.sh $(release)

clean: ## removes everything that was built
	rm -rf build
