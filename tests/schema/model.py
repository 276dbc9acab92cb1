#!/usr/bin/env python3
# What a schema allows, as data: every element by its path from the root, with the
# elements that may stand directly below it and its attributes with their kinds and words.
# For the tests; run by hand it prints the same as text:
#   model.py SCHEMA…
# Knows what the schemas of this project use, and stops at anything else.
import os
import sys
import xml.etree.ElementTree as ElementTree

XS = "{http://www.w3.org/2001/XMLSchema}"
UNREAD = "{urn:operationXml:schema}unread"
GLOBAL = ("element", "complexType", "simpleType", "group", "attributeGroup")

# Types of attributes that are no text, and what the readers call them.
KINDS = {"flag": "flag", "number": "number", "signedNumber": "number"}


class Schema:
    def __init__(self, path):
        self.components = {kind: {} for kind in GLOBAL}
        self.elements = {}  # path of names: {"children", "attributes", "unread"}
        self._load(path, set())
        for name, element in self.own_elements.items():
            self._element((name,), element)

    def _load(self, path, seen):
        if path in seen:
            return
        seen.add(path)
        root = ElementTree.parse(path).getroot()
        if len(seen) == 1:
            self.own_elements = {node.get("name"): node for node in root.findall(XS + "element")}
        for node in root:
            if node.tag == XS + "include":
                self._load(os.path.join(os.path.dirname(path), node.get("schemaLocation")), seen)
            else:
                self.components[node.tag.removeprefix(XS)][node.get("name")] = node

    def _element(self, path, node, around=()):
        """Enters an element and what stands below it; one that may stand in itself, once."""
        type_node = self._type(node, "complexType")
        children, attributes, below = {}, {}, []
        self._content(type_node, children, attributes, below)
        self.elements[path] = {"children": children, "attributes": attributes, "unread": UNREAD in node.attrib}
        for child in below:
            key = (child.get("name"), self._type(child, "complexType"))
            if key not in around:
                self._element((*path, child.get("name")), child, (*around, key))

    def _type(self, node, kind):
        return node.find(XS + kind) if node.get("type") is None else self.components[kind].get(node.get("type"))

    def _content(self, node, children, attributes, below):
        for part in node:
            kind = part.tag.removeprefix(XS)
            if kind == "element":
                if part.get("name") not in children:
                    below.append(part)
                children[part.get("name")] = UNREAD in part.attrib
            elif kind == "attribute":
                words = sorted(self._words(part))
                attributes[part.get("name")] = {"kind": "word" if words else KINDS.get(part.get("type"), "text"),
                                                "words": words, "required": part.get("use") == "required",
                                                "unread": UNREAD in part.attrib}
            elif kind in ("group", "attributeGroup"):
                self._content(self.components[kind][part.get("ref")], children, attributes, below)
            elif kind == "extension":
                if part.get("base") in self.components["complexType"]:
                    self._content(self.components["complexType"][part.get("base")], children, attributes, below)
                self._content(part, children, attributes, below)
            elif kind in ("sequence", "choice", "all", "complexContent", "simpleContent"):
                self._content(part, children, attributes, below)
            elif kind != "annotation":
                raise ValueError(f"{part.tag} is new to this script")

    def _words(self, node):
        """The words of an attribute or simple type; none when any text of a kind may stand there."""
        type_node = self._type(node, "simpleType")
        if type_node is None:
            return set()  # one of the types that XSD brings
        union = type_node.find(XS + "union")
        if union is None:
            return {word.get("value") for word in type_node.iter(XS + "enumeration")}
        members = [self._words(ElementTree.Element("member", type=name)) for name in union.get("memberTypes").split()]
        return set().union(*members) if all(members) else set()


def main():
    for path in sys.argv[1:]:
        print(os.path.basename(path))
        for names, element in sorted(Schema(path).elements.items()):
            print("  " + "/".join(names) + (" (unread)" if element["unread"] else ""))
            for name, attribute in sorted(element["attributes"].items()):
                print("    @" + name, "|".join(attribute["words"]) or attribute["kind"],
                      *(mark for mark in ("required", "unread") if attribute[mark]))
            if element["children"]:
                print("    >", *sorted(element["children"]))


if __name__ == "__main__":
    main()
