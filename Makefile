# The two commands of the README: `make demo` and `make test`.
BUILD      ?= build
BUILD_ASAN ?= build-asan
JOBS       ?= $(shell nproc)
CMAKE_FLAGS ?=
# Language of the demo and the snapshots: en, zh_CN or keys (`make snapshots VELMORA_LANG=zh_CN`).
VELMORA_LANG ?= en
export VELMORA_LANG

.PHONY: demo test deps build build-asan test-unit test-asan snapshots bench clean

deps:
	@scripts/install-deps.sh

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

$(BUILD_ASAN)/build.ninja:
	cmake -S . -B $(BUILD_ASAN) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
	  -DVELMORA_SANITIZE=ON -DVELMORA_FUZZ=ON -DVELMORA_BENCH=OFF $(CMAKE_FLAGS)

build-asan: deps $(BUILD_ASAN)/build.ninja
	ASAN_OPTIONS=detect_leaks=0 cmake --build $(BUILD_ASAN) -j $(JOBS)

test-unit: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: build-asan
	cd $(BUILD_ASAN) && ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --output-on-failure -j $(JOBS)

# Unit and integration tests against the emulator, then the same suite under ASan+UBSan
# (with the bounded fuzz runs), ending with CTest's summary.
test: test-unit test-asan

demo: build
	@scripts/demo.sh $(BUILD)

snapshots: build
	@scripts/demo.sh $(BUILD) --snapshot-only

bench: build
	@scripts/bench.sh $(BUILD)

clean:
	rm -rf $(BUILD) $(BUILD_ASAN)
