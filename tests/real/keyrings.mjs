// Keyrings on a session bus of their own, each with a default collection of the password "password".
import { mkdir, writeFile } from 'node:fs/promises';
import { once } from 'node:events';
import { end, output, pause, start, until } from './processes.mjs';

const password = 'password';
const name = 'org.freedesktop.secrets';
const group = { id: '{00112233-4455-6677-8899-aabbccddeeff}', base64: 'ABEiM0RVZneImaq7zN3u/w==' };

// The environment of a new bus and a new home.
async function startBus() {
  const print = 'console.log(JSON.stringify(process.env)); process.stdin.resume()';
  const child = start(process.env.KZ_PRIVATE_BUS, ['node', '-e', print]);
  const [line] = await once(child.stdout, 'data');
  return { env: JSON.parse(line), stop: () => end(child) };
}

// Whether the service has a default collection yet; no without the service.
async function isReady(env) {
  const to = ['--session', '--print-reply', `--dest=${name}`, '/org/freedesktop/secrets'];
  const ask = output('dbus-send', [...to, 'org.freedesktop.Secret.Service.ReadAlias', 'string:default'], { env });
  return (await ask.catch(() => '')).includes('path "/org/');
}

class Keyring {
  static async start() {
    const keyring = new this();
    keyring.bus = await startBus();
    keyring.env = keyring.bus.env;
    await keyring.prepare();
    await keyring.run('unlocked');
    return keyring;
  }

  async prepare() {}

  // Ends the service and starts it again with the same items, "locked" or "unlocked".
  async run(state) {
    await this.end();
    this.child = await this.launch(state);
    await until('the keyring is ready', () => isReady(this.env));
  }

  async end() {
    if (this.child) await end(this.child, 'SIGTERM');
    this.child = undefined;
  }

  async stop() {
    await this.end();
    await this.bus.stop();
  }
}

export class GnomeKeyring extends Keyring {
  async launch(state) {
    const unlock = state === 'unlocked' ? ['--unlock'] : [];
    const child = start('gnome-keyring-daemon', ['--foreground', '--components=secrets', ...unlock], { env: this.env });
    child.stdin.end(state === 'unlocked' ? password : '');
    return child;
  }
}

// Its collection is always unlocked. Locked is each item that the user is to be asked about, as it is by default.
export class KeePassXC extends Keyring {
  async prepare() {
    this.database = `${this.env.HOME}/passwords.kdbx`;
    await writeFile(`${this.env.HOME}/passwords.xml`, emptyDatabase);
    const create = ['import', '--quiet', '--set-password', `${this.env.HOME}/passwords.xml`, this.database];
    await output('keepassxc-cli', create, { env: this.env, input: `${password}\n${password}\n` });
  }

  async launch(state) {
    const folder = `${this.env.XDG_CONFIG_HOME}/keepassxc`;
    await mkdir(folder, { recursive: true });
    await writeFile(`${folder}/keepassxc.ini`, configuration(state === 'locked'));
    const child = start('keepassxc', ['--pw-stdin', this.database], { env: this.env });
    child.stdin.end(`${password}\n`);
    return child;
  }

  async end() {
    // It saves a moment after each change.
    if (this.child) await pause(2000);
    await super.end();
  }
}

function configuration(asksForAccess) {
  return `[General]
ConfigVersion=2
AutoSaveAfterEveryChange=true
SingleInstance=false

[GUI]
CheckForUpdates=false

[FdoSecrets]
Enabled=true
ConfirmAccessItem=${asksForAccess}
ConfirmDeleteItem=false
`;
}

const emptyDatabase = `<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<KeePassFile>
  <Meta>
    <Generator>KeePassXC</Generator>
    <CustomData><Item><Key>FDO_SECRETS_EXPOSED_GROUP</Key><Value>${group.id}</Value></Item></CustomData>
  </Meta>
  <Root><Group><UUID>${group.base64}</UUID><Name>Root</Name></Group></Root>
</KeePassFile>
`;
