import assert from 'node:assert/strict';
import { afterEach, beforeEach, test } from 'node:test';
import { describeWith } from './counterparts.mjs';
import { GnomeKeyring, KeePassXC } from './keyrings.mjs';
import { applyAccount, openMeetings, resolved, tokenRequest } from './preferences.mjs';
import { Session, until } from './processes.mjs';
import { startMockProvider } from './providers.mjs';

const user = 'johndoe';
const email = 'johndoe@example.com';

// A keyring that is locked as a whole takes nothing new. KeePassXC does, while it asks before it gives anything.
function keyringTests(Keyring, { isLockedAsAWhole }) {
  let keyring;
  let provider;
  let session;
  beforeEach(async () => {
    keyring = await Keyring.start();
    provider = await startMockProvider();
  });
  afterEach(async () => {
    await session.end();
    await provider.stop();
    await keyring.stop();
  });

  async function nextRun() {
    await session?.end();
    session = new Session(['--keychain', 'system', '--writes', '--trace'], keyring.env);
    await openMeetings(session);
  }

  async function signIn() {
    await fetch(await applyAccount(session, provider.authority, { email }));
    await session.waitFor('the credential', (line) => line.sent === 27);
    await session.play(resolved(email));
    return session.sent(27)[0].QRT_CredentialContent;
  }

  function kept(from = 0) {
    return session.waitFor('the tokens are kept', (line) => line.kept === 'OutlookAccount(Online)', from);
  }

  // What the host gets for a request, at once.
  async function token() {
    const from = session.printed.length;
    await session.play(tokenRequest(user));
    const answer = await session.waitFor('an answer', (line) => line.sent === 29, from);
    return answer.content.QRT_ListingMeeting_exchOnlineToken;
  }

  test('what one run keeps, the next finds', async () => {
    await nextRun();
    const signedIn = await signIn();
    await kept();
    await nextRun();
    assert.equal(await token(), signedIn);
  });

  test('locked: told so, asked nothing, nothing lost; read once unlocked', async () => {
    await nextRun();
    const signedIn = await signIn();
    await kept();
    await session.end();

    await keyring.run('locked');
    await nextRun();
    assert.equal(await token(), undefined);
    assert.match(JSON.stringify(session.printed), /the keyring is locked/);
    await keyring.run('unlocked');
    // It is tried again at least once a minute.
    assert.equal(await until('the tokens are read', token, 90000), signedIn);
  });

  if (!isLockedAsAWhole) return;
  test('locked while signing in: kept once unlocked', async () => {
    await keyring.run('locked');
    await nextRun();
    const signedIn = await signIn();
    await session.play({ wait: 500 });
    assert.ok(!session.printed.some((line) => line.kept));
    assert.equal(await token(), signedIn);
    await keyring.run('unlocked');
    await kept();
    await nextRun();
    assert.equal(await token(), signedIn);
  });
}

await describeWith(['gnome-keyring-daemon --version', 'oauth2-mock-server'], () =>
  keyringTests(GnomeKeyring, { isLockedAsAWhole: true }),
);
await describeWith(['keepassxc --version', 'oauth2-mock-server'], () =>
  keyringTests(KeePassXC, { isLockedAsAWhole: false }),
);
