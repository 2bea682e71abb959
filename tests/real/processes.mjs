// Programs that a test starts, and ends at the latest when it ends itself.
import { spawn } from 'node:child_process';
import { once } from 'node:events';
import { createInterface } from 'node:readline';

export const programs = process.env.KZ_PROGRAMS;
export const pictures = process.env.KZ_PICTURES;

const running = new Set();
process.on('exit', () => running.forEach((child) => child.kill('SIGKILL')));

export function pause(milliseconds) {
  return new Promise((resolve) => setTimeout(resolve, milliseconds));
}

// The first value that is not falsy.
export async function until(what, look, milliseconds = 20000) {
  for (const end = Date.now() + milliseconds; Date.now() < end; await pause(20)) {
    const value = await look();
    if (value) return value;
  }
  throw new Error(`did not happen: ${what}`);
}

export function start(program, args, options = {}) {
  const child = spawn(program, args, { stdio: ['pipe', 'pipe', 'inherit'], ...options });
  running.add(child);
  // A program may end without reading.
  child.stdin.on('error', () => {});
  child.once('error', () => running.delete(child));
  child.once('exit', () => running.delete(child));
  return child;
}

export async function end(child, signal) {
  if (!running.has(child)) return;
  const ended = once(child, 'exit');
  signal ? child.kill(signal) : child.stdin.end();
  const impatient = setTimeout(() => child.kill('SIGKILL'), 10000);
  await ended;
  clearTimeout(impatient);
}

export async function output(program, args, { input = '', env = process.env } = {}) {
  const child = start(program, args, { env, timeout: 60000 });
  child.stdin.end(input);
  let text = '';
  child.stdout.on('data', (part) => (text += part));
  const [status] = await once(child, 'close');
  if (status !== 0) throw new Error(`${program} ended with ${status}: ${text}`);
  return text;
}

// prefs-session with a window offscreen: plays steps, and keeps what it prints.
export class Session {
  #child;
  #marker = 0;
  printed = [];

  constructor(args = [], env = process.env) {
    this.#child = start(`${programs}/prefs-session`, ['--live', ...args], {
      env: { ...env, LC_ALL: 'C.UTF-8', LANGUAGE: '' },
    });
    const lines = createInterface({ input: this.#child.stdout });
    lines.on('line', (line) => this.printed.push(JSON.parse(line)));
  }

  // Plays the steps; returns what was printed meanwhile.
  async play(...steps) {
    const from = this.printed.length;
    const marker = `played ${++this.#marker}`;
    for (const step of [...steps, { echo: marker }]) this.#child.stdin.write(JSON.stringify(step) + '\n');
    const isPlayed = () => {
      const { exitCode, signalCode } = this.#child;
      if (!running.has(this.#child)) throw new Error(`prefs-session ended with ${signalCode ?? exitCode}`);
      return this.printed.slice(from).some((line) => line.echo === marker);
    };
    await until(`played: ${JSON.stringify(steps)}`, isPlayed);
    return this.printed.slice(from).filter((line) => line.echo === undefined);
  }

  async get(what) {
    return (await this.play({ get: what })).find((line) => line.result !== undefined).result;
  }

  // The first line printed after the first `from` ones that fits.
  waitFor(what, fits, from = 0) {
    return until(what, () => this.printed.slice(from).find(fits));
  }

  sent(number) {
    return this.printed.filter((line) => line.sent === number).map((line) => line.content);
  }

  end() {
    return end(this.#child);
  }
}
