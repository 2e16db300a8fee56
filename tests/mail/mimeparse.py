# Reads a received message with Python's own e-mail parser, as a mail program would, and
# reports what it understood: the decoded subject and addresses, the parts, the defects it
# found; the body text goes to text.txt and each attachment under its decoded name into the
# folder given.
import base64
import email
import email.policy
import os
import sys

with open(sys.argv[1], "rb") as f:
    message = email.message_from_binary_file(f, policy=email.policy.default)
out = sys.argv[2]
print("subject:" + str(message["subject"]))
print("from:" + str(message["from"]))
print("to:" + str(message["to"]))
print("type:" + message.get_content_type())
print("defects:%d" % len(message.defects))


def content(part):
    # The program writes "Content-Transfer-Encoding: base64 " with a trailing space. Mail
    # readers trim header values; Python's parser does not, so the value is trimmed here.
    if str(part.get("content-transfer-encoding", "")).strip().lower() == "base64":
        return base64.b64decode(part.get_payload(decode=False), validate=False)
    return part.get_payload(decode=True)


for part in message.iter_parts():
    print("part:" + part.get_content_type())
    if len(part.defects):
        print("part-defects:%d" % len(part.defects))
    name = part.get_filename()
    if name:
        print("filename:" + name)
        with open(os.path.join(out, name), "wb") as a:
            a.write(content(part))
    else:
        with open(os.path.join(out, "text.txt"), "wb") as t:
            # Line ends as a reader shows them, whatever the transfer used.
            t.write(content(part).replace(b"\r\n", b"\n"))
