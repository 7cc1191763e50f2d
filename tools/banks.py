#!/usr/bin/env python3
"""Makes data/banken.tsv, the directory of banks.

    tools/banks.py BANKDATA INSTITUTES

BANKDATA is the folder of the unpacked npm package bankdata-germany (codes, names, BICs), INSTITUTES the one of
fints-institute-db (cities, addresses of PIN/TAN servers). The same packages always give the same file.
"""
import json
import sys
from collections import Counter
from pathlib import Path
from urllib.parse import urlsplit

TARGET = Path(__file__).resolve().parent.parent / "data" / "banken.tsv"

# The addresses were collected in 2020. Servers that have moved since, by the end of their host's name.
MOVED = {
    "fiducia.de": "https://fints2.atruvia.de/cgi-bin/hbciservlet",
    "bankingonline.de": "https://fints2.atruvia.de/cgi-bin/hbciservlet",
    "gad.de": "https://fints1.atruvia.de/cgi-bin/hbciservlet",
    "banking-dkb.s-fints-pt-dkb.de": "https://fints.dkb.de/fints",
    "ing-diba.de": "https://fints.ing.de/fints/",
}

# Domains of banks and names that no longer exist. Whoever gets hold of such a domain would be sent PINs.
GONE = ("biw-bank.de", "degussa-bank.de", "hsh-nordbank-banking.de", "neelmeyer.de", "wuestenrot.de")

# Banks with one server for all of their codes: begin of the BIC, a word of the name, address. The first match counts.
# The name is looked at because other banks have taken over codes together with their BICs.
ONE_SERVER = (
    ("COBADEHD", "comdirect", "https://fints.comdirect.de/fints"),
    ("COBADE", "Commerzbank", "https://fints.commerzbank.de/fints"),
    ("DRESDEFF", "Commerzbank", "https://fints.commerzbank.de/fints"),
)

# Names under which customers know their bank where the official name does not hold them: by code, else by name.
KNOWN_AS = {
    "70120400": "Consorsbank",
    "76030080": "Consorsbank",
    "Deutsche Kreditbank Berlin": "DKB",
    "Frankfurter Sparkasse": "Fraspa",
    "Hamburger Sparkasse": "Haspa",
    "Landesbank Baden-Württemberg/Baden-Württembergische Bank": "BW-Bank",
    "Nassauische Sparkasse": "Naspa",
    "Oldenburgische Landesbank AG": "OLB",
    "Openbank Deutschland": "Santander",
    "UniCredit Bank - HypoVereinsbank": "HVB",
    "apoBank": "Deutsche Apotheker- und Ärztebank",
}


def load(path):
    return json.loads(path.read_text(encoding="utf-8"))


def clean(text):
    return " ".join((text or "").split())


def package(folder, name):
    about = load(folder / "package.json")
    if about["name"] != name:
        sys.exit(f"banks: {folder} is not the package {name}")
    return about


def banks(folder):
    """Name and BIC by code, as they are from the day on that the package announces."""
    data = folder / "dist" / "cjs" / "data"
    known, change = load(data / "current.json"), load(data / "next.json")
    for code in change["remove"]:
        known.pop(code, None)
    known.update(change["upsert"])
    return {code: (clean(row[0]), clean(row[1]) if len(row) > 1 else "") for code, row in known.items()}, change["valid"][:10]


def institutes(folder):
    """City and address by code. A code has a row for each branch: the first address counts, and of the cities the one
    that most codes of the region begin with. The first three digits of a code name the region."""
    cities, urls = {}, {}
    for row in load(folder / "fints-institutes.json"):
        if row["location"]:
            cities.setdefault(row["blz"], []).append(clean(row["location"]))
        if row["pinTanURL"]:
            urls.setdefault(row["blz"], clean(row["pinTanURL"]))
    seats = Counter((code[:3], names[0].split(",")[0]) for code, names in cities.items())

    def seat(code):
        return max(cities.get(code, [""]), key=lambda city: seats[code[:3], city.split(",")[0]])

    return {code: (seat(code), urls.get(code, "")) for code in cities.keys() | urls.keys()}


def is_below(host, domain):
    return host == domain or host.endswith("." + domain)


def address(bic, name, url):
    for begin, word, server in ONE_SERVER:
        if bic.startswith(begin) and word in name:
            return server
    host = urlsplit(url).hostname or ""
    for domain, server in MOVED.items():
        if is_below(host, domain):
            return server
    is_gone = any(is_below(host, domain) for domain in GONE)
    return url if url.startswith("https://") and host and not is_gone else ""


def line(code, name, bic, city, url):
    known_as = KNOWN_AS.get(code) or KNOWN_AS.get(name)
    title = f"{name} ({known_as})" if known_as else name
    return "\t".join((code, bic, title, city, address(bic, name, url)))


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    folders = [Path(argument) for argument in sys.argv[1:]]
    first, second = package(folders[0], "bankdata-germany"), package(folders[1], "fints-institute-db")
    licence = (folders[0] / "LICENSE.MIT").read_text(encoding="utf-8")
    owner = next(text for text in licence.splitlines() if text.startswith("Copyright"))
    known, day = banks(folders[0])
    places = institutes(folders[1])
    lines = [
        "# Banks in Germany: code, BIC, name, city, address of the PIN/TAN server (empty: not known).",
        f"# Made by tools/banks.py, which also corrects addresses and adds well-known names; as of {day}.",
        f"# Codes, BICs, names: npm package {first['name']} {first['version']}, {owner}, licence {first['license']}",
        f"# Cities, addresses: npm package {second['name']} {second['version']}, {second['author'].split(' <')[0]},"
        f" licence {second['license']}",
    ]
    lines += [line(code, *known[code], *places.get(code, ("", ""))) for code in sorted(known)]
    TARGET.write_text("\n".join(lines) + "\n", encoding="utf-8")
    count = sum(not text.endswith("\t") for text in lines[4:])
    print(f"banks: {len(lines) - 4} codes, {count} with an address, in {TARGET}")


main()
