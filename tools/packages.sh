# The Debian 12 packages of the project, by what they are needed for. Sourced by run and check.
build_packages=(g++ cmake ninja-build nlohmann-json3-dev libcli11-dev libsqlite3-dev)
window_packages=(qt6-base-dev libqt6svg6)
test_packages=(libgtest-dev libgmock-dev mdbtools xvfb xauth fonts-dejavu-core)
package_packages=(dpkg-dev file desktop-file-utils appstream groff-base)
bench_packages=(libbenchmark-dev python3 xvfb xauth)
fuzz_packages=(clang libclang-rt-14-dev)
