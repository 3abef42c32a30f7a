# Two commands do everything from a bare Debian 12 machine:
#   make run    build the program and show the example device
#   make test   build the tests with sanitizers and run them
# Both install missing packages through scripts/setup first.

JOBS := $(shell nproc)
EXAMPLES := examples

.PHONY: run test program setup pictures bench fuzz random format tidy clean

run: program
	scripts/run-example build/release/bin/ioview $(EXAMPLES)

test: program
	cmake --preset asan
	cmake --build --preset asan -j$(JOBS)
	ctest --preset asan -j$(JOBS)
	scripts/fuzz-short 10
	fuzz/random_scripts build/asan/bin/ioview --seconds 20

# The optimised program, with its benchmarks, in build/release/bin.
program: setup
	cmake --preset release
	cmake --build --preset release -j$(JOBS)

setup:
	scripts/setup

# The pictures of the README, from the desktop.
pictures: program
	cmake --build --preset release -j$(JOBS) --target make_pictures
	scripts/pictures build/release/bin/make_pictures $(EXAMPLES) docs/pictures

# The table of docs/performance.md.
bench: program
	build/release/bin/benchmarks

# Ten minutes for each fuzz target.
fuzz: setup
	scripts/fuzz-short 600

# An hour of random scripts, with sanitizers.
random: setup
	cmake --preset asan
	cmake --build --preset asan -j$(JOBS) --target ioview
	fuzz/random_scripts build/asan/bin/ioview --seconds 3600 --seed $$(date +%s)

format: setup
	git ls-files '*.h' '*.cpp' | xargs clang-format -i

tidy: setup
	cmake --preset dev
	mkdir -p build/tidy
	sed 's/ -fno-gnu-unique//' build/dev/compile_commands.json > build/tidy/compile_commands.json
	git ls-files '*.cpp' | grep -v '^fuzz/' | xargs -n 8 -P $(JOBS) clang-tidy -p build/tidy --quiet \
	  --extra-arg=-Wno-unknown-warning-option

clean:
	rm -rf build
