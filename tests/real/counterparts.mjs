// What the tests run against: npm packages and programs, which may be missing.
import { readFileSync } from 'node:fs';
import { describe } from 'node:test';
import { output } from './processes.mjs';

function packageVersion(name) {
  return JSON.parse(readFileSync(`node_modules/${name}/package.json`)).version;
}

async function programVersion(command) {
  return (await output('sh', ['-c', `${command} 2>&1`])).match(/\d+(\.\d+)+/)[0];
}

// Each need is the name of an npm package, or a program with its option for the version.
async function find(need) {
  const [name, option] = need.split(' ');
  try {
    return { title: `${name} ${option ? await programVersion(need) : packageVersion(name)}` };
  } catch {
    return { title: name, isMissing: true };
  }
}

// A group of tests that is skipped where one of its counterparts is missing.
export async function describeWith(needs, tests) {
  const found = await Promise.all(needs.map(find));
  const missing = found.filter((each) => each.isMissing).map((each) => each.title);
  const skip = missing.length ? `missing: ${missing.join(', ')}` : false;
  describe(found.map((each) => each.title).join(', '), { skip }, tests);
}
