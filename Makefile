# make run   installs what is missing, builds, starts the program from defter/ (the books,
#            xsmm.dat, live there; no clean target touches that folder)
# make test  installs what is missing, builds, runs every test, then again under ASan+UBSan
#            (that build uses clang, so the sources pass both compilers' warnings)
# make bench builds and runs the benchmarks

BUILD      := build
BOOKS      := defter
ASAN_BUILD := build-asan-clang
JOBS       ?= $(shell nproc)

.PHONY: deps build build-asan run test test-plain test-asan bench format clean

deps:
	@./scripts/install-deps.sh

$(BUILD)/build.ninja:
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo

$(ASAN_BUILD)/build.ninja:
	cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DSM_SANITIZE=ON -DCMAKE_CXX_COMPILER=clang++

build: deps $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

build-asan: deps $(ASAN_BUILD)/build.ninja
	cmake --build $(ASAN_BUILD) -j $(JOBS)

run: build
	@mkdir -p $(BOOKS)
	@cp $(BUILD)/serbestmeslek $(BOOKS)/serbestmeslek
	@if [ -n "$$DISPLAY" ] || [ -n "$$WAYLAND_DISPLAY" ]; then \
	  cd $(BOOKS) && ./serbestmeslek; \
	else \
	  cd $(BOOKS) && xvfb-run -a -s "-screen 0 1280x800x24" ./serbestmeslek; \
	fi

test-plain: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: build-asan
	cd $(ASAN_BUILD) && ctest --output-on-failure -j $(JOBS)

test: test-plain test-asan

bench: build
	@./scripts/install-deps.sh ledger hledger
	$(BUILD)/bench/bench_datastore
	$(BUILD)/bench/bench_dclist
	$(BUILD)/bench/bench_accounts
	$(BUILD)/bench/bench_ledger
	$(BUILD)/bench/bench_accountreports
	$(BUILD)/bench/bench_esmm

format:
	find src tests bench -name '*.cpp' -o -name '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
