#!/usr/bin/env python3
"""Checks `vantello-cli report --all --by-month --json` (standard input) against a generated data
set's summary.json: the months' expense and income totals, summed per category, must equal the
generator's exactly.

  vantello-cli report --all --by-month --json --data-dir DIR | check-monthly-totals.py DIR/summary.json
"""
import json
import sys
from collections import defaultdict
from decimal import Decimal


def main(summary_path):
    report = json.load(sys.stdin)
    expected = json.load(open(summary_path, encoding="utf-8"))["ledger"]
    for side, key in (("expenses", "expense_totals"), ("income", "income_totals")):
        sums = defaultdict(Decimal)
        for month in report["months"]:
            for category, amount in month[side].items():
                sums[category] += Decimal(amount)
        wanted = {category: Decimal(amount) for category, amount in expected[key].items()}
        found = {category: amount for category, amount in sums.items() if amount != 0}
        if found != wanted:
            for category in sorted(set(found) | set(wanted)):
                if found.get(category) != wanted.get(category):
                    print(f"{side} {category}: ours {found.get(category)}, expected {wanted.get(category)}")
            return 1
    print(f"totals equal the generator's over {len(report['months'])} months")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
