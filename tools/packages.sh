# The Debian 12 packages of the project, by what they are needed for. Sourced by run and check.
build_packages=(g++ cmake ninja-build nlohmann-json3-dev libcli11-dev libsqlite3-dev)
test_packages=(libgtest-dev libgmock-dev mdbtools)
bench_packages=(libbenchmark-dev python3)
fuzz_packages=(clang libclang-rt-14-dev)
