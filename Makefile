# The two entry points: `make run` builds and starts the application, `make test` builds and
# runs every test. Both install the Debian packages they need first.

BUILD_DIR ?= build
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?= -DCMAKE_BUILD_TYPE=RelWithDebInfo

.PHONY: deps configure build run test bench clean

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
test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

bench: build
	bash scripts/run-benchmarks.sh $(BUILD_DIR)

clean:
	rm -rf $(BUILD_DIR)
