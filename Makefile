# The two entry points: `make run` builds and starts the application, `make test` builds and
# runs every test. Both install the Debian packages they need first. `make fuzz` runs every
# libFuzzer harness for FUZZ_SECONDS each.

BUILD_DIR ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo
# The harnesses and the core layers they read with, built by clang with the sanitizers. The
# inputs the harnesses grow are kept in $(FUZZ_BUILD_DIR)/fuzz/corpus.
FUZZ_BUILD_DIR ?= $(BUILD_DIR)-fuzz
FUZZ_SECONDS ?= 600
FUZZ_CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ -DVANTELLO_BUILD_FUZZERS=ON \
  -DVANTELLO_WARNINGS_AS_ERRORS=ON

.PHONY: deps configure build run test bench clean fuzz-build fuzz

deps:
	bash scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD_DIR) -G Ninja $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD_DIR) -j $(JOBS)

run: configure
	cmake --build $(BUILD_DIR) -j $(JOBS) --target vantello
	$(BUILD_DIR)/app/vantello

# Warnings fail the build of the tests, so that none slips in.
test: CMAKE_FLAGS += -DVANTELLO_WARNINGS_AS_ERRORS=ON
test: build fuzz-build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)
	ctest --test-dir $(FUZZ_BUILD_DIR) -L fuzz --output-on-failure -j $(JOBS)

fuzz-build: deps
	cmake -S . -B $(FUZZ_BUILD_DIR) -G Ninja $(FUZZ_CMAKE_FLAGS)
	cmake --build $(FUZZ_BUILD_DIR) -j $(JOBS)

fuzz: fuzz-build
	bash scripts/run-fuzzers.sh $(FUZZ_BUILD_DIR) $(FUZZ_SECONDS)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
