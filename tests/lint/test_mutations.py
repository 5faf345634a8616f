"""The mutation runner: which changes it finds, how it draws them, and what it makes of a test's end."""

import pathlib
import signal
import sys

import pytest

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(PROJECT / "tools"))
import mutate  # noqa: E402
import mutations  # noqa: E402


def tried(source):
    """Each change as "was -> now"."""
    return [f"{change.was} -> {change.now}" for change in mutations.changes_in("src/a/A.cpp", source)]


def tried_in_body(statements, returns="void"):
    return tried(f"{returns} F(const T& x) {{ {statements} }}")


@pytest.mark.parametrize("code, changes", [
    ("a = b < c;", ["< -> <="]), ("a = b >= c;", [">= -> >"]), ("a = b == c;", ["== -> !="]),
    ("a = b + c;", ["+ -> -"]), ("a += b;", ["+= -> -="]), ("a = b &&\n c;", ["&& -> ||"]),
    ("++a;", ["++ -> --"]), ("a = !b;", ["! -> "]), ("a = true;", ["true -> false"]),
    ("a = b | c;", ["| -> &"]), ("a = b << c;", ["<< -> >>"]), ("a = -b;", []),
    # Marks of types are no operators.
    ("std::map<A, std::vector<B>> a;", []), ("const T& a = *b;", []), ("auto&& a = std::move(b);", []),
    ("T* a = b->c;", []), ("template_<T> a;", []),
    # Texts and comments stay as they are.
    ('a = "1 < 2";', []), ("// 1 < 2\n/* a == b */", []), ('a = R"(1 < 2")";', []), ("a = '<';", []),
])
def test_operators_and_constants(code, changes):
    assert tried_in_body(code) == changes


@pytest.mark.parametrize("was, now", [("0", "1"), ("9", "10"), ("10u", "11u"), ("0x0F", "0x10"), ("0xFFU", "0x100U"),
                                      ("2.5f", "3.5f"), ("1'000", "1001")])
def test_a_number_becomes_the_next_one(was, now):
    assert mutations.next_number(was) == now
    assert tried_in_body(f"a = {was};") == [f"{was} -> {now}"]


@pytest.mark.parametrize("code, changes", [
    ("if (a) b = c;", ["a -> false", "a -> true"]),
    ("if (auto a = B(); a.Good()) c = d;", ["a.Good() -> false", "a.Good() -> true"]),
    ("if (const auto* a = B()) c = d;", []), ("if constexpr (a) b = c;", []),
    ("while (a) b = c;", ["a -> false"]), ("do b = c; while (a);", ["a -> false"]),
])
def test_conditions(code, changes):
    assert tried_in_body(code) == changes


@pytest.mark.parametrize("code, changes", [
    ("Foo(a);", ["Foo(a) -> "]), ("a.b->Foo(c)[d].Bar();", ["a.b->Foo(c)[d].Bar() -> "]),
    ("if (a == b)\n Foo();", ["a == b -> false", "a == b -> true", "== -> !=", "Foo() -> "]),
    ("else Foo();", ["Foo() -> "]), ("std::swap(a, b);", ["std::swap(a, b) -> "]),
    ("Foo([&] { Bar(); });", ["Foo([&] { Bar(); }) -> ", "Bar() -> "]),
    # What is answered is used; a declaration is no call.
    ("a = Foo(b);", []), ("Foo a(b);", []), ("return Foo(b);", []), ("Foo a{b};", []),
    ("for (Foo(); a; Bar()) b = c;", []),
])
def test_calls_that_are_statements(code, changes):
    assert tried_in_body(code) == changes


def test_what_a_function_of_bool_returns_is_turned_round():
    assert tried_in_body("return a.Good(b);", "static bool") == ["a.Good(b) -> !(a.Good(b))"]
    assert tried("bool A::F() const { return b_; }") == ["b_ -> !(b_)"]
    assert tried("class A { explicit operator bool() const { return b_; } };") == ["b_ -> !(b_)"]
    assert tried_in_body("for (A b : c) { return d; }", "bool") == ["d -> !(d)"]
    assert tried_in_body("return [](A b) -> bool { return c; };") == ["c -> !(c)"]
    assert tried_in_body("return [](A b) { return c; }(a);", "bool")[1:] == []
    assert tried_in_body("return a;", "int") == []
    assert tried_in_body("return true;", "bool") == ["true -> false"]


def test_declarations_directives_and_tables_are_left_alone():
    assert tried("class A { A(); virtual int F() const = 0; bool operator<(const A& b); };") == []
    assert tried("static_assert(1 < 2);\nenum { kOne = 1 };") == ["1 -> 2"]
    assert tried("#if 1 < 2\nint a = 1;\n#else\nint a = 2;\n#endif\nint b = 3;") == ["1 -> 2", "3 -> 4"]
    assert tried("constexpr Twips kEdge = 120;\nconstexpr int kMost = 7;\n"
                 "constexpr ControlDesign kControls[] = {{1, true}, {2, false}};") == ["7 -> 8"]
    assert mutations.changes_in(mutations.TABLE_FILES[0], "int a = 1;") == []


def test_the_body_of_a_constructor_is_code():
    assert tried("A::A(B b) : B(b), c_(b), d_{b} { Foo(); }") == ["Foo() -> "]


def test_a_change_says_where_it_is_and_is_made_there_only():
    source = "int F() {\n    return a + b + c;\n}\n"
    first, second = mutations.changes_in("src/a/A.cpp", source)
    assert (second.line, second.column, second.text) == (2, 18, "return a + b + c;")
    assert first.applied_to(source) == "int F() {\n    return a - b + c;\n}\n"
    assert second.applied_to(source) == "int F() {\n    return a + b - c;\n}\n"
    assert second.told() == "src/a/A.cpp:2: + -> -   in: return a + b + c;"


def test_lines_without_code_do_not_count():
    assert mutations.lines_of_code("// a\n\nint a;\n#include <b>\nint b = 1; /* c\n d */\n") == 2


def test_each_room_has_its_share():
    assert mutations.shares({"low": 1, "mid": 2, "high": 3}, 6) == {"low": 1, "mid": 2, "high": 3}
    assert mutations.shares({"low": 10, "mid": 10, "high": 11}, 4) == {"low": 1, "mid": 1, "high": 2}


def test_changes_are_drawn_alike_for_one_seed_and_first_one_from_each_line():
    source = "int F() {\n" + "    a = b + c + 1;\n" * 20 + "}\n"
    changes = mutations.changes_in("src/a/A.cpp", source)
    one = mutations.in_drawn_order(changes, "1")
    assert one == mutations.in_drawn_order(reversed(changes), "1")
    assert one != mutations.in_drawn_order(changes, "2")
    assert sorted(change.line for change in one[:20]) == list(range(2, 22))
    assert len(one) == 60


RUN = "[ RUN      ] A.Fits\n"


@pytest.mark.parametrize("code, output, late, test, how", [
    (0, RUN + "[       OK ] A.Fits (0 ms)\n", False, "", "passed"),
    (0, "", False, "(before the first test)", "crashed"),
    (1, RUN + "[  FAILED  ] A.Fits (0 ms)\n[  FAILED  ] A.Fits\n", False, "A.Fits", "failed"),
    (1, RUN + "[  FAILED  ] A.Fits, where GetParam() = 3 (0 ms)\n", False, "A.Fits", "failed"),
    (-signal.SIGSEGV, RUN, False, "A.Fits", "crashed"),
    (-signal.SIGXCPU, RUN, False, "A.Fits", "took too long"),
    (-signal.SIGKILL, RUN, True, "A.Fits", "took too long"),
])
def test_how_a_test_program_ended(code, output, late, test, how):
    assert mutate.outcome_of(code, output, 1.0, late) == mutate.Outcome(test, how, 1.0)


def test_a_rooms_own_tests_are_run_first_and_others_only_when_they_use_it():
    used = {"unit_low": {"low"}, "unit_up_mid": {"low", "up_mid"}, "unit_high": {"low", "up_mid", "high"},
            "contract_low": {"low", "more", "most"}, "unit_other": {"other"}}
    assert mutate.order_of_programs("low", used) == ["unit_low", "contract_low", "unit_up_mid", "unit_high"]
    assert mutate.order_of_programs("up/mid", used) == ["unit_up_mid", "unit_high"]


def test_results_are_kept_and_a_line_that_was_cut_off_is_not_read(tmp_path):
    source = "int F() {\n    a = b + c;\n}\n"
    change, = mutations.changes_in("src/a/A.cpp", source)
    results = mutate.Results(tmp_path / "results", True)
    assert results.of(change) is None
    record = {**vars(change), "result": mutate.SURVIVED}
    results.add(record)
    with open(results.path, "a", encoding="utf-8") as out:
        out.write('{"file": "src/a')
    assert mutate.Results(results.path, True).of(change) == record
    assert mutate.Results(results.path, False).of(change) is None


def test_a_change_is_found_again_where_its_line_went():
    source = "int F() {\n    a = b + c;\n" + "    d = e;\n" * 9 + "    a = b + c;\n}\n"
    before = mutations.changes_in("src/a/A.cpp", source)
    after = mutations.changes_in("src/a/A.cpp", "// new\n\n" + source)
    assert mutate.same_change(vars(before[1]), after) == after[1]
    assert mutate.same_change(vars(before[1]), mutations.changes_in("src/a/A.cpp", "int a;")) is None


def test_what_does_not_build_is_replaced(tmp_path):
    rooms = {room: {f"src/{room}/A.cpp": "int F() {\n" + "    a = b + c;\n" * lines + "}\n"}
             for room, lines in (("low", 28), ("mid", 8))}
    results = mutate.Results(tmp_path / "results", True)
    built = []
    for number, change in enumerate(mutate.drawn(rooms, 8, 1, results)):
        fails = number % 3 == 0
        results.add({**vars(change), "result": mutate.UNBUILDABLE if fails else mutate.NOTICED})
        built += [] if fails else [mutate.room_of(change.file)]
    assert sorted(built) == ["low"] * 6 + ["mid"] * 2
