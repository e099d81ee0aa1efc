#pragma once

#include <QMap>
#include <QString>
#include <filesystem>
#include <vector>

namespace fidaleon::paper {

/// An element of an XML file, or, where the name is empty, a piece of text.
struct XmlNode {
  QString name;
  QString text;
  QMap<QString, QString> attributes;
  std::vector<XmlNode> children;
  QString file;
  qint64 line = 0;
};

/// Reads a file; an element "include" is replaced by the children of the root of the file it
/// names, which stands in the same directory. Its other attributes are words that the file, and
/// what that includes, writes "$(name)". Throws Error: MissingTemplate, BrokenTemplate.
XmlNode readXml(const std::filesystem::path& file);

/// Throws Error(BrokenTemplate) that names the file and the line of the node.
[[noreturn]] void failAt(const XmlNode& node, const QString& message);

}  // namespace fidaleon::paper
