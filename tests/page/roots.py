# Server roots, their pages, and what opxml says of them.
import json
import os
import shutil
import subprocess


class Tool:
    def __init__(self, opxml, folder):
        self.opxml = opxml
        self.folder = folder

    def run(self, root, *arguments, stdin=None):
        return subprocess.run([self.opxml, "--root", root, *arguments], input=stdin, capture_output=True,
                              encoding="utf-8", timeout=300, check=False)

    # Writes a page; its path.
    def page(self, root, *options):
        path = os.path.join(self.folder, f"page{len(os.listdir(self.folder))}.html")
        done = self.run(root, "report", "--output", path, *options)
        assert done.returncode == 0, done.stderr
        return path

    # Answers of opxml query --batch to questions, by question.
    def ask(self, root, questions):
        lines = "".join(json.dumps(question) + "\n" for question in questions)
        done = self.run(root, "query", "--batch", "-", stdin=lines)
        return [json.loads(line).get("answer") for line in done.stdout.splitlines()]


HOSTILE_TYPE = "<script>document.title='run'</script>"
HOSTILE_OPERATION = "</script><img src=x onerror=alert(1)>"
HOSTILE_DEVICE = "\"><svg onload=alert(2)> & ' \u202e"


# The example, with names that somebody chose with care. Both types use the common file.
def hostile_root(example, folder):
    root = os.path.join(folder, "hostile")
    shutil.copytree(example, root)
    replace(os.path.join(root, "server.sql"), {"'SW-100'": "'" + HOSTILE_TYPE.replace("'", "''") + "'",
                                               "'NetEdge 5'": "'__proto__'",
                                               "'edge-17'": "'" + HOSTILE_DEVICE.replace("'", "''") + "'"})
    escaped = HOSTILE_OPERATION.replace("<", "&lt;").replace(">", "&gt;")
    replace(os.path.join(root, "common/dc/conf/dc/devtype_xmlconf/Common_ServerConfiguration.xml"),
            {'id="QuickSetup"': f'id="{escaped}"'})
    return root


def replace(path, words):
    with open(path, encoding="utf-8") as file:
        text = file.read()
    for word, other in words.items():
        assert word in text, word
        text = text.replace(word, other)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


# The example as it may have been: what is gone today, came, or says something else.
def earlier_root(example, folder):
    root = os.path.join(folder, "earlier")
    shutil.copytree(example, root)
    config = os.path.join(root, "common/dc/conf/dc/devtype_xmlconf")
    replace(os.path.join(config, "LX_2400_S_ServerConfiguration.xml"), {
        '    <Operation id="Recover" operationLevel="DeviceLevel" isCancelable="0">':
            '    <Operation id="Diagnose" operationLevel="DeviceLevel"/>\n'
            '    <Operation id="Recover" operationLevel="DeviceLevel" isCancelable="1">',
        '<Option id="PATCH" value="4" target="flash:/patch"/>': '<Option id="PATCH" value="44" target="flash:/patch"/>',
    })
    replace(os.path.join(config, "OLT-880_ServerConfiguration.xml"), {
        '    <Operation id="Save" operationLevel="DeviceLevel" isCancelable="0"/>\n': "",
        '    <Item type="DeviceOperation" id="Dispense"/>\n': "",
    })
    replace(os.path.join(root, "server.sql"), {"'RX 900\\E'": "'RX 900-E'"})
    return root
