# SPDX-License-Identifier: MIT
# Each command installs what it needs (Debian 12, as root or with sudo), builds and does its work.

PREFIX ?= /usr/local

.PHONY: run install package release test check lint format sanitizers fuzz faults bench clean

run: ## Build Roamlet and start it
	@Scripts/run.sh

install: ## Build Roamlet and install it below PREFIX, or into DESTDIR
	@DESTDIR="$(DESTDIR)" Scripts/install.sh "$(PREFIX)"

package: ## Make a Debian package of Roamlet
	@Scripts/package.sh

release: ## Make a package, its signature and its feed, with ROAMLET_KEY_FILE for ROAMLET_BASE_ADDRESS
	@Scripts/release.sh

test: ## Build and run every test
	@Scripts/test.sh dev

check: lint sanitizers test ## Everything a change has to pass

lint: ## Check the formatting and the code
	@Scripts/lint.sh

format: ## Format the code
	@Scripts/install-dependencies.sh lint
	@git ls-files '*.cpp' '*.h' | xargs clang-format-19 -i

sanitizers: ## Run every test under the address, undefined-behaviour and thread sanitizers
	@Scripts/test.sh asan
	@Scripts/test.sh tsan

MINUTES ?= 5
fuzz: ## Attack every door of foreign bytes for MINUTES
	@Scripts/fuzz.sh $(MINUTES)

faults: ## Let each system call fail in turn
	@Scripts/check-faults.sh

bench: ## Measure Roamlet against the plain alternatives
	@Scripts/bench.sh

clean: ## Remove everything that was built
	@rm -rf build
