"""Programs of others are built with the package of the libraries, and with nothing else of ours."""

import re
import shlex
import unittest

from packages import SOURCES, PackageTest, package

WARNINGS = ("-Wall", "-Wextra", "-Wconversion", "-Wshadow", "-Werror")
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.MULTILINE)


class LibraryTest(PackageTest):
    """Both packages are unpacked over one another; a program is built in a folder of its own."""

    def setUp(self):
        super().setUp()
        for name in ("liborvane-dev", "orvane"):
            self.run_in_folder("dpkg-deb", "--extract", str(package(f"{name}_*.deb")), "root")
        self.prefix = self.folder / "root/usr"
        self.examples = self.prefix / "share/doc/liborvane-dev/examples"

    def pkg_config(self, *arguments):
        path = f"PKG_CONFIG_PATH={self.prefix}/lib/pkgconfig"
        return shlex.split(self.run_in_folder("env", path, "pkg-config", *arguments))

    def configure(self, *options):
        self.run_in_folder("cmake", "-S", "project", "-B", "build", "--fresh",
                           f"-DCMAKE_PREFIX_PATH={self.prefix}", *options)

    def write_project(self, *lines):
        (self.folder / "project").mkdir(exist_ok=True)
        (self.folder / "project/CMakeLists.txt").write_text("\n".join(lines) + "\n")

    def check_examples(self, programs):
        """They do what the program of the other package does."""
        orvane = str(self.prefix / "bin/orvane")
        walk = str(self.prefix / "share/doc/orvane/examples/walk.trc")

        gaps = [line.split("\t") for line in
                self.run_in_folder(f"{programs}/gaps", walk).splitlines()]
        self.assertEqual(gaps[0], ["walker:LFWT", "7", "11"])
        self.assertEqual(len({name for name, _, _ in gaps}), 10)
        self.assertEqual(sum(int(last) - int(first) + 1 for _, first, last in gaps), 188)

        self.run_in_folder(f"{programs}/convert", walk, "walk.bvk")
        self.run_in_folder(orvane, "convert", walk, "-o", "other.bvk")
        frames = [(self.folder / name).read_text().partition("Frame")[2]
                  for name in ("walk.bvk", "other.bvk")]
        self.assertGreater(len(frames[0]), 100_000)
        self.assertEqual(*frames)

        motion = str(self.prefix / "share/doc/orvane/examples/walk.htr")
        places = self.run_in_folder(f"{programs}/positions", motion, "LeftHand").splitlines()
        self.assertEqual(len(places), 120)
        self.assertEqual(places[0].split("\t"), ["1", "246.988", "838.402", "-87.8175"])

        self.run_in_folder(f"{programs}/write", "pendulum.htr")
        self.assertIn("clean: 1 segment, 120 frames",
                      self.run_in_folder(orvane, "check", "pendulum.htr"))

    def test_cmake_builds_the_examples(self):
        self.run_in_folder("cmake", "-S", str(self.examples), "-B", "build",
                           f"-DCMAKE_PREFIX_PATH={self.prefix}",
                           f"-DCMAKE_CXX_FLAGS={' '.join(WARNINGS)}")
        self.run_in_folder("cmake", "--build", "build")
        self.check_examples("build")

    def test_pkg_config_builds_the_examples(self):
        for name, library in (("gaps", "formats"), ("convert", "inspect"),
                              ("positions", "formats"), ("write", "formats")):
            flags = self.pkg_config("--cflags", "--libs", f"orvane-{library}")
            self.assertIn("-std=c++20", flags)
            self.run_in_folder("g++", *WARNINGS, str(self.examples / f"{name}.cpp"), *flags,
                               "-o", name)
        self.check_examples(".")

    def test_the_examples_are_short(self):
        sizes = {path.name: len(path.read_text().splitlines())
                 for path in self.examples.glob("*.cpp")}
        self.assertEqual({"convert.cpp", "gaps.cpp", "positions.cpp", "write.cpp"}, set(sizes))
        self.assertLess(max(sizes.values()), 40, sizes)

    def test_the_page_s_example_prints_what_the_page_says(self):
        (page,) = self.examples.parent.glob("docs/library.md")
        block = re.search(r"```console\n(.*?)```", page.read_text(), re.DOTALL)[1]
        self.assertEqual(block.count("$ "), 3)
        for command, told in re.findall(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", block, re.MULTILINE):
            printed = self.run_in_folder("env", "PKG_CONFIG_PATH=root/usr/lib/pkgconfig", "sh", "-c",
                                         command.replace("/usr/", "root/usr/"))
            start, gap, end = told.partition("...\n")
            self.assertTrue(printed.startswith(start) and (gap or printed == start), printed)
            self.assertEqual(end, "")

    def test_cmake_takes_the_package_for_its_own_minor_version_alone(self):
        version = package("liborvane-dev_*.deb").name.split("_")[1]
        major, minor, _ = map(int, version.split("."))
        for wanted, fits in ((f"{major}.{minor}", 1), (version, 1), (f"{major}.{minor + 1}", 0),
                             (f"{major}.{minor - 1}", 0), (f"{major + 1}.0", 0)):
            self.write_project("cmake_minimum_required(VERSION 3.15)", "project(wanting CXX)",
                               f"find_package(Orvane {wanted} QUIET)",
                               f"if(NOT Orvane_FOUND EQUAL {fits})",
                               "  message(FATAL_ERROR ${Orvane_FOUND})", "endif()")
            with self.subTest(wanted=wanted):
                self.configure()

    def test_a_shared_library_may_hold_them_and_shows_nothing_of_them(self):
        (self.folder / "count.cpp").write_text(
            "#include <orvane/formats/text/byte_source.h>\n"
            "#include <orvane/inspect/check/trc_check.h>\n"
            '#define SHOWN extern "C" __attribute__((visibility("default")))\n'
            "SHOWN std::size_t CountCodes(const char* bytes) {\n"
            "  orvane::MemorySource source(bytes);\n"
            "  orvane::TRCDocument document;\n"
            '  return orvane::CheckTrc("bytes", source, document).findings.Totals().size();\n'
            "}\n")
        flags = self.pkg_config("--cflags", "--libs", "orvane-inspect")
        self.run_in_folder("g++", "-shared", "-fPIC", "-fvisibility=hidden", "count.cpp", *flags,
                           "-o", "count.so")
        symbols = self.run_in_folder("nm", "--dynamic", "--defined-only", "--demangle", "count.so")
        names = [line.split(maxsplit=2)[2] for line in symbols.splitlines()]
        self.assertIn("CountCodes", names)
        self.assertEqual([name for name in names if name.startswith("orvane::")], [])

    def test_headers_include_what_is_installed(self):
        headers = sorted((self.prefix / "include").rglob("*.h"))
        self.assertIn(self.prefix / "include/orvane/formats/trc/document.h", headers)
        for header in headers:
            for quote, name in INCLUDE.findall(header.read_text()):
                if quote == '"':
                    self.assertTrue((self.prefix / "include" / name).is_file(), f"{header}: {name}")
                else:
                    self.assertNotIn("/", name, header)

    def test_the_page_tells_of_every_header(self):
        page = (SOURCES / "docs/library.md").read_text()
        told = {f"orvane/{name}" for name in re.findall(r"`((?:formats|inspect)/\S+\.h)`", page)}
        include = self.prefix / "include"
        self.assertEqual(told, {str(path.relative_to(include)) for path in include.rglob("*.h")})

    def test_nothing_tells_where_it_was_built(self):
        self.check_no_foreign_folder(self.prefix)


if __name__ == "__main__":
    unittest.main()
