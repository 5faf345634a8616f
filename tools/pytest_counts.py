#!/usr/bin/env python3
"""Prints "PASSED FAILED" of a JUnit report; a skipped test is neither."""

import sys
import xml.etree.ElementTree as ElementTree

suites = ElementTree.parse(sys.argv[1]).getroot().iter("testsuite")
total = failed = skipped = 0
for suite in suites:
    total += int(suite.get("tests"))
    failed += int(suite.get("failures")) + int(suite.get("errors"))
    skipped += int(suite.get("skipped"))
print(total - failed - skipped, failed)
