// Symbol visibility. Both libraries are built with hidden visibility: what a
// caller may link is marked here, nothing else leaves the shared object.
#ifndef OPERATIONXML_PLATFORM_EXPORT_H
#define OPERATIONXML_PLATFORM_EXPORT_H

// Classes and functions of liboperationXml itself.
#define OPERATIONXML_API __attribute__((visibility("default")))

// Platform services: declared here, defined by the server's platform libraries
// or by the stand-alone library, resolved at link time.
#define OPERATIONXML_PLATFORM_API __attribute__((visibility("default")))

#endif
