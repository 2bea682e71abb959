"""A sign-in authority for sequence pictures: the sandbox's, behind a relay that tells who asked it for what; and a
browser that signs in there."""
import http.server
import json
import socketserver
import subprocess
import threading
import urllib.error
import urllib.parse
import urllib.request

BROWSER = "sequence-picture"
TIME_LIMIT = 60


class NoRedirect(urllib.request.HTTPRedirectHandler):
    def redirect_request(self, *_):
        return None


def ask(address, body=None, agent=""):
    """Status, headers and body of the answer; redirects are answers like others."""
    request = urllib.request.Request(address, data=body, headers={"User-Agent": agent})
    opener = urllib.request.build_opener(urllib.request.ProxyHandler({}), NoRedirect)
    try:
        with opener.open(request, timeout=TIME_LIMIT) as answer:
            return answer.status, answer.headers, answer.read()
    except urllib.error.HTTPError as answer:
        return answer.code, answer.headers, answer.read()


class Authority:
    """Runs from `with` to its end. `tell(is_browser, request line, parameters)` is called for each request, and
    `tell_answer(is_browser, text, parameters)` before its answer goes out; both on other threads."""

    def __init__(self, sandbox, tell, tell_answer):
        self.tell, self.tell_answer = tell, tell_answer
        self.process = subprocess.Popen([sandbox, "--give", "--lifetime", "1", "--until-input-ends"], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def __enter__(self):
        behind = urllib.parse.urlsplit(json.loads(self.process.stdout.readline())["authority"])
        self.behind = f"{behind.scheme}://{behind.netloc}"
        # Not http.server's own class, which asks the network for this machine's name.
        self.server = socketserver.ThreadingTCPServer(("127.0.0.1", 0), self.handler())
        self.server.daemon_threads = True
        self.here = f"http://127.0.0.1:{self.server.server_address[1]}"
        self.address = self.here + behind.path
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.server.shutdown()
        self.server.server_close()
        self.process.stdin.close()
        self.process.wait(TIME_LIMIT)

    def pass_on(self, method, path, agent, body):
        is_browser = agent == BROWSER
        address = urllib.parse.urlsplit(path)
        self.tell(is_browser, f"{method} {address.path}", parameters(body.decode() if body else address.query))
        status, headers, answer = ask(self.behind + path, body)
        redirect = headers.get("Location")
        if redirect:
            self.tell_answer(is_browser, f"{status} to the loopback address", {})
        elif method == "POST":
            self.tell_answer(is_browser, f"{status}", json.loads(answer))
        # The authority names its own pages by its own address.
        return status, redirect, headers.get("Content-Type", ""), answer.replace(self.behind.encode(), self.here.encode())

    def handler(self):
        authority = self

        class Handler(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                length = int(self.headers.get("Content-Length") or 0)
                status, redirect, kind, answer = authority.pass_on(
                    self.command, self.path, self.headers.get("User-Agent"), self.rfile.read(length) or None)
                self.send_response(status)
                if redirect:
                    self.send_header("Location", redirect)
                self.send_header("Content-Type", kind)
                self.send_header("Content-Length", str(len(answer)))
                self.end_headers()
                self.wfile.write(answer)

            do_POST = do_GET

            def log_message(self, *_):
                pass

        return Handler


def parameters(query):
    return dict(urllib.parse.parse_qsl(query))


def browse(address, tell):
    """Opens the address as a user's browser would, and follows its redirect; `tell(request line, parameters)` is
    called before the second request, which goes to the plug-in."""
    redirect = ask(address, agent=BROWSER)[1]["Location"]
    there = urllib.parse.urlsplit(redirect)
    tell(f"GET {there.path}", parameters(there.query))
    ask(redirect, agent=BROWSER)
