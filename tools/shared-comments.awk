# Doxygen's view of the headers. A comment there speaks for all declarations right below it, up to a blank line or the
# next comment, and the comment of a struct for its first fields, as in
#   /// Start and length of the selection in characters.
#   int SelStart() const;
#   void SelStart(int value);
# Doxygen gives a comment to one declaration only, so that the others get a copy of it here. Line numbers stay.

function trimmed(text) { sub(/^ +/, "", text); return text }

BEGIN { comment = ""; fresh = 0; complete = 1; depth = 0; kinds[0] = "outside" }

{ line = trimmed($0) }

line == "" || line ~ /^(public|protected|private):$/ || line ~ /^#/ { comment = ""; fresh = 0; complete = 1; print; next }

line ~ /^\/\/\// {
  comment = (fresh ? comment " " : "") substr(line, 5)
  fresh = 1
  print
  next
}

line ~ /^\/\// { print; next }

{
  starts = complete && kinds[depth] != "body" && line !~ /^}/
  if (starts && !fresh && comment != "" && line !~ /= (delete|default);$/ && line !~ /^(friend|using|class|struct|namespace) /)
    print "/** " comment " */ " $0
  else
    print
  if (starts) declaration = line
  fresh = 0
  complete = line ~ /[;{}]$/
  if (line ~ /^}/ && depth > 0) { --depth; if (kinds[depth + 1] != "body") comment = "" }
  if (line ~ /{$/) {
    ++depth
    kinds[depth] = declaration ~ /^(class|struct|namespace|template <.*> class) ?/ || line ~ /^(class|struct) / ? "scope" : "body"
    if (kinds[depth] == "scope" && declaration !~ /^struct /) comment = ""
  }
}
