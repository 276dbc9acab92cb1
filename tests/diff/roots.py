# Small server roots, and what opxml diff says of two of them. For the tests beside it.
import json
import os
import subprocess

CONFIG = "common/dc/conf/dc/devtype_xmlconf/"
MODULE = "etc/oss_cfg/dc/ne_script/importscript/m/ServerConfiguration.xml"


def own_file(number):
    return f"{CONFIG}T{number}.xml"


# One registered type for each body, served by a file of its own, with a device; the first
# in two versions. More files and statements as the caller likes.
def write_root(folder, bodies, files=(), sql=""):
    statements = [sql, "INSERT INTO device_type (name, version) VALUES ('T0', 'W');" if bodies else ""]
    for number, body in enumerate(bodies):
        statements.append(f"INSERT INTO device_type (name, version, type_id, version_id) VALUES ('T{number}', 'V', {number}, 1);"
                          f"INSERT INTO config_file VALUES ('T{number}', '{own_file(number)}');"
                          f"INSERT INTO device (device_id, type_id, version_id) VALUES ({number + 1}, {number}, 1);")
        files = {**dict(files), own_file(number): body if body.lstrip().startswith("<!") else f"<C>\n{body}\n</C>"}
    for path, text in {**dict(files), "server.sql": "\n".join(statements)}.items():
        os.makedirs(os.path.dirname(os.path.join(folder, path)), exist_ok=True)
        with open(os.path.join(folder, path), "w", encoding="utf-8") as file:
            file.write(text)


def diff(opxml, old, new, *options):
    done = subprocess.run([opxml, "diff", old, new, "--format", "json", *options], capture_output=True, timeout=60)
    assert done.returncode in (0, 1), done.stderr.decode()
    answer = json.loads(done.stdout)
    assert done.returncode == (1 if answer["changes"] else 0)
    return answer


# What a change says, one for each type that has it; without rule and places.
def said(answer):
    return sorted((site["type"] + " " + site["version"], site["software"], change["change"], change["kind"], change["path"], change["field"],
                   change["old"], change["new"]) for change in answer["changes"] for site in change["sites"])


MIRRORED = {"gained": "lost", "lost": "gained"}


# The same seen from the other side.
def mirrored(changes):
    return sorted((type_, software, MIRRORED.get(change, change), kind, path, field, new, old)
                  for type_, software, change, kind, path, field, old, new in changes)
